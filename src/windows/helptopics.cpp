#include "windows/helptopics.h"

#include <array>
#include <utility>

#include "common/desk.h"
#include "program/program.h"

namespace tamo {

void ShowHelp(Program& program, Form& front) {
  static constexpr std::array<std::pair<const char*, const char*>, 10> kTopics = {
      {{"Tamo", "Projects"},
       {"Settings", "Settings"},
       {"Pricing", "Pricing"},
       {"RFSForm", "Room Finish Schedule"},
       {"EstimateForm", "Non Room Finish Schedule Items"},
       {"BottomLine", "Bottom Line Items"},
       {"AdjustmentForm", "Price Adjustment"},
       {"OST", "DSW"},
       {"Reports", "Reports"},
       {"Docs", "Documentation"}}};
  Form* docs = program.FindForm(QStringLiteral("Docs"));
  auto* topics = docs == nullptr
                     ? nullptr
                     : dynamic_cast<OrderedList*>(docs->Find(QStringLiteral("MenuList")));
  if (topics == nullptr) return;
  QString topic;
  for (const auto& [form, name] : kTopics) {
    if (front.Name() == QLatin1String(form)) topic = QLatin1String(name);
  }
  int row = -1;
  for (int i = topics->Count() - 1; i >= 0; --i) {
    if (topics->Rows()[i].trimmed() == topic) row = i;
  }
  Desk& desk = program.GetDesk();
  desk.Dispatch([&] {
    desk.Show(*docs, docs->OwnerForm());
    if (row >= 0) desk.ClickRow(*topics, row);
  });
}

}  // namespace tamo
