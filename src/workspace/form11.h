#pragma once

#include "common/form.h"
#include "common/kit.h"

namespace tamo {

// Never shown: it only gives the shared fields a place and a name.
class Form11 : public Form {
 public:
  explicit Form11(const Kit& kit) : Form(kit.desk, QStringLiteral("Form11")) {
    AddText(QStringLiteral("zDir"), &kit.shared.zDir);
    AddText(QStringLiteral("GUIText"), &kit.shared.GUIText);
    AddText(QStringLiteral("OPN"), &kit.shared.OPN);
    AddText(QStringLiteral("LineColor"), &kit.shared.LineColor);
    AddText(QStringLiteral("IAmHere"), &kit.shared.IAmHere);
    AddText(QStringLiteral("DTText"), &kit.shared.DTText);
  }
};

}  // namespace tamo
