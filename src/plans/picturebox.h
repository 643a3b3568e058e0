#pragma once

#include "common/control.h"
#include "common/form.h"

namespace tamo {

// A picture box: the part of a window in which the plan, or its thumbnails, are shown. It takes the
// focus, so that the keys of the plan go to it.
class PictureBox : public Control {
 public:
  PictureBox(Form& form, const QString& name) : Control(form, name) { form.Register(this); }
};

}  // namespace tamo
