#include "program/windowways.h"

#include <utility>

namespace tamo {
namespace {

constexpr WindowWay kWays[] = {
    {"Tamo", "Projects", "ProjectInformation", "ProjectInformation"},
    {"OST", "The plan", "OST1", ""},
    {"Pricing", "Pricing", "UnitsPricing", "Pricing2"},
    {"RFSForm", "Room Finish Schedule", "EnterRoomFinishSchedule", "EnterRFS"},
    {"EstimateForm", "Non Finish Schedule Items", "NonFinishScheduleItems", "NRFS"},
    {"BottomLine", "Bottom Line Items", "BottomLineItems", "BottomLine1"},
    {"AdjustmentForm", "Price Adjustment", "PriceAdjustment", "PriceAdjustment"},
    {"Reports", "Report; the Recap Overview when none is open", "RecapSheet", "Recap"},
    {"Docs", "Documentation", "Docs1", "Documentation"}};

}  // namespace

std::span<const WindowWay> WindowWays() {
  return kWays;
}

void GoToWindow(Desk& desk, int number) {
  if (number < 1 || number > static_cast<int>(std::size(kWays))) return;
  const WindowWay& way = kWays[number - 1];
  Form* form = desk.Find(QLatin1String(way.form));
  if (form == nullptr) return;
  if (form->Visible()) return desk.UserActivate(*form);
  for (const auto& [shell, name] : {std::pair("Tamo", way.onMain), std::pair("OST", way.onOst)}) {
    Form* carrier = desk.Find(QLatin1String(shell));
    MenuEntry* entry = carrier == nullptr || !carrier->Visible()
                           ? nullptr
                           : carrier->FindMenu(QLatin1String(name));
    if (entry != nullptr && entry->Choosable()) return desk.ChooseMenu(*entry);
  }
}

}  // namespace tamo
