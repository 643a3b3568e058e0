#include "pricing/systemcontrols.h"

namespace tamo {

SystemControls::SystemControls(Form& owner) : ControlGroup(owner) {
  PutAllInto(FramePricing,
             {&LabelUnits, &Units, &UnitsList, &LabelUnitPrice, &UnitPrice, &Label3, &Line1});
  HideAll({&FramePricing, &Label3});
}

}  // namespace tamo
