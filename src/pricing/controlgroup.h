#pragma once

#include "common/form.h"

namespace tamo {

// Controls that belong together, part of the form that they are made with. A form of several groups
// has them all as its own.
struct ControlGroup {
  explicit ControlGroup(Form& owner) : form(owner) {}
  Form& form;  // outlives the group
};

// Puts each control into the frame.
inline void PutAllInto(Frame& frame, std::initializer_list<Control*> controls) {
  for (Control* control : controls) control->PutInto(frame);
}
inline void HideAll(std::initializer_list<Control*> controls) {
  for (Control* control : controls) control->Hide();
}

}  // namespace tamo
