#include "pricing/materialcontrols.h"

namespace tamo {

MaterialControls::MaterialControls(Form& owner) : ControlGroup(owner) {
  PutAllInto(LandMFrame, {&LabelMaterial, &Material,   &MaterialsList, &Label18,  &LabelOrderUnits,
                          &OrderUnits,    &oUnitsList, &LabelPrice,    &Price,    &LabelUPO,
                          &UPO,           &Label5,     &LabelMnhr,     &MnhrPO,   &Label8,
                          &Label4,        &Waste,      &Label7,        &WageRate, &WagesList,
                          &MaterialList});
  HideAll({&LandMFrame, &Label9, &Label19, &EUP});
}

}  // namespace tamo
