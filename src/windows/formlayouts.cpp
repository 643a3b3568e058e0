#include "windows/formlayouts.h"

#include <array>
#include <utility>

namespace tamo {

bool LayOut(Builder& builder) {
  using Make = void (*)(Builder&);
  static constexpr std::array<std::pair<const char*, Make>, 12> kLayouts = {
      {{"Tamo", LayOutTamo},
       {"Settings", LayOutSettings},
       {"Pricing", LayOutPricing},
       {"RFSForm", LayOutRFSForm},
       {"EstimateForm", LayOutEstimateForm},
       {"BottomLine", LayOutBottomLine},
       {"AdjustmentForm", LayOutAdjustmentForm},
       {"OST", LayOutOST},
       {"Schedule", LayOutSchedule},
       {"Reports", LayOutReports},
       {"Docs", LayOutDocs},
       {"Versions", LayOutVersions}}};
  for (const auto& [name, make] : kLayouts) {
    if (builder.GetForm().Name() != QLatin1String(name)) continue;
    make(builder);
    return true;
  }
  return false;
}

}  // namespace tamo
