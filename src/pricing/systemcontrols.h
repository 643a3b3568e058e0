#pragma once

#include "pricing/controlgroup.h"

namespace tamo {

// A system's name, its takeoff unit and its price. Controls stand in the order in which Tab walks
// them.
struct SystemControls : ControlGroup {
  explicit SystemControls(Form& owner);

  Label LabelDescription{form, "LabelDescription", "System Name:"};
  TextField Description{form, "Description"};
  OrderedList DescriptionsList{form, "DescriptionsList"};
  Frame FramePricing{form, "FramePricing"};
  Label LabelUnits{form, "LabelUnits", "TakeOff Units:"};
  TextField Units{form, "Units"};
  OrderedList UnitsList{form, "UnitsList"};
  Label LabelUnitPrice{form, "LabelUnitPrice", "UnitPrice:"};
  TextField UnitPrice{form, "UnitPrice"};
  Label Label3{form, "Label3", "Leave UnitPrice blank and press Enter to use labor and material"};
  Swatch Line1{form, "Line1"};
};

}  // namespace tamo
