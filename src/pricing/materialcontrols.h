#pragma once

#include <array>

#include "pricing/controlgroup.h"

namespace tamo {

// Labor and material: the fields of one material, the list of the system's materials, and the price
// estimated from them. Controls stand in the order in which Tab walks them.
struct MaterialControls : ControlGroup {
  explicit MaterialControls(Form& owner);

  Frame LandMFrame{form, "LandMFrame"};
  Label LabelMaterial{form, "LabelMaterial", "Material:"};
  TextField Material{form, "Material"};
  OrderedList MaterialsList{form, "MaterialsList"};
  Label Label18{form, "Label18", "Leave blank and press Enter to finish."};
  Label LabelOrderUnits{form, "LabelOrderUnits", "Order Units:"};
  TextField OrderUnits{form, "OrderUnits"};
  OrderedList oUnitsList{form, "oUnitsList"};
  Label LabelPrice{form, "LabelPrice", "Cost per "};
  TextField Price{form, "Price"};
  Label LabelUPO{form, "LabelUPO"};
  TextField UPO{form, "UPO"};
  Label Label5{form, "Label5", "Leave blank and press Enter to use "};
  Label LabelMnhr{form, "LabelMnhr"};
  TextField MnhrPO{form, "MnhrPO"};
  Label Label8{form, "Label8", "Leave blank and press Enter to use Manhours per "};
  Label Label4{form, "Label4", "Waste %:"};
  TextField Waste{form, "Waste"};
  Label Label7{form, "Label7", "Wage Rate:"};
  TextField WageRate{form, "WageRate"};
  OrderedList WagesList{form, "WagesList"};
  OrderedList MaterialList{form, "MaterialList"};
  Label Label9{form, "Label9", "  Estimated Unit Price"};
  Label Label19{form, "Label19"};
  Label EUP{form, "EUP"};
};

}  // namespace tamo
