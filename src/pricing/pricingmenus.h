#pragma once

#include "pricing/controlgroup.h"

namespace tamo {

// The menu of the price library and its two pop-ups.
struct PricingMenus : ControlGroup {
  using ControlGroup::ControlGroup;

  MenuEntry UnitsPricing{form, "UnitsPricing", "&Unit Pricing"};
  MenuEntry Markups{form, "Markups", "&Markups"};
  MenuEntry CopySystem{form, "CopySystem", "&Copy System"};
  MenuEntry PasteSystem{form, "PasteSystem", "&Paste System"};
  MenuEntry ImportSystem{form, "ImportSystem", "&Import System"};
  MenuEntry ExportSystem{form, "ExportSystem", "&ExportSystem"};
  MenuEntry PrintSystem{form, "PrintSystem", "P&rint System"};
  MenuEntry Xit{form, "Xit", "E&xit"};
  // The whole library as a sheet, and back.
  MenuEntry SystemSheet{form, "SystemSheet", "&Sheet"};
  MenuEntry SaveSystems{form, "SaveSystems", "&Save Systems As ...", &SystemSheet};
  MenuEntry TakeSystems{form, "TakeSystems", "&Take Systems from a Sheet ...", &SystemSheet};
  MenuEntry SystemMenu{form, "SystemMenu", "System", nullptr, true};
  MenuEntry SystemDelete{form, "SystemDelete", "Delete System", &SystemMenu};
  MenuEntry SystemCancel{form, "SystemCancel", "Cancel", &SystemMenu};
  MenuEntry MaterialMenu{form, "MaterialMenu", "Material", nullptr, true};
  MenuEntry MaterialDelete{form, "MaterialDelete", "Delete Material", &MaterialMenu};
  MenuEntry MaterialInsert{form, "MaterialInsert", "Insert Material", &MaterialMenu};
  MenuEntry MaterialCancel{form, "MaterialCancel", "Cancel", &MaterialMenu};
};

}  // namespace tamo
