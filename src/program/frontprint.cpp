#include "program/frontprint.h"

#include "common/textlines.h"
#include "reports/printpages.h"

namespace tamo {
namespace {

bool ChooseOwnEntry(Desk& desk, Form& form) {
  static constexpr std::pair<const char*, const char*> kEntries[] = {
      {"OST", "Printit"}, {"Reports", "printReport"}, {"Pricing", "PrintSystem"}};
  for (const auto& [name, entry] : kEntries) {
    MenuEntry* own = form.FindMenu(QLatin1String(entry));
    if (form.Name() != QLatin1String(name) || own == nullptr || !own->Choosable()) continue;
    desk.ChooseMenu(*own);
    return true;
  }
  return false;
}

const OrderedList* Find(const Form& form, const char* name) {
  const auto* list = dynamic_cast<const OrderedList*>(form.Find(QLatin1String(name)));
  return list != nullptr && list->ShownWithFrames() && !list->Empty() ? list : nullptr;
}

// Rows whose cells are separated by tabs stand in columns.
QString InColumns(const QString& row) {
  if (!row.contains(u'\t')) return row;
  constexpr int kWidth = 12;
  QString line;
  for (const QString& cell : row.split(u'\t')) line += cell.leftJustified(kWidth) + u' ';
  return line;
}

// What is said above the lines: of which room or area they are.
QString HeadOf(const Form& form) {
  QStringList parts;
  for (const auto& [name, caption] :
       {std::pair("Room", "Room: "), std::pair("Area", "Area: "), std::pair("How", "Height: ")}) {
    const auto* field = dynamic_cast<const TextField*>(form.Find(QLatin1String(name)));
    const bool area = form.Name() == QLatin1String("EstimateForm");
    if (field == nullptr || field->Empty() || (!area && *name == 'A')) continue;
    parts += QLatin1String(caption) + field->Text();
  }
  return parts.join(QStringLiteral("   "));
}

QStringList LinesOf(const Form& form) {
  QStringList lines;
  if (form.Name() == QLatin1String("Docs")) {
    const auto* text = dynamic_cast<const TextField*>(form.Find(QStringLiteral("DocText")));
    return text == nullptr ? lines : WholeLines(text->Text());
  }
  for (const Control* control : form.Controls()) {
    const auto* list = dynamic_cast<const OrderedList*>(control);
    if (list == nullptr || list->dropsFrom != nullptr || !list->ShownWithFrames()) continue;
    for (const QString& row : list->Rows()) lines += InColumns(row);
  }
  return lines;
}

}  // namespace

void PrintFront(const Kit& kit, Form& form) {
  // The entry of the reports prints no Office Copy; what is looked at is printed here.
  const OrderedList* copy =
      form.Name() == QLatin1String("Reports") ? Find(form, "Reporter1") : nullptr;
  if (copy == nullptr && ChooseOwnEntry(kit.desk, form)) return;
  kit.desk.Dispatch([&] {
    if (copy != nullptr)
      return PrintPages(kit.platform.printer, copy->SharedRows(), kit.shared.JobID,
                        kit.shared.JobName);
    const QStringList lines = LinesOf(form);
    if (lines.join(QString()).trimmed().isEmpty()) {
      kit.desk.GetMessages().Tell(
          QStringLiteral("Nothing stands in this window that could be printed."));
      return;
    }
    const QString head = HeadOf(form);
    QStringList page = {form.Caption(), QString()};
    if (!head.isEmpty()) page += {head, QString()};
    PrintPages(kit.platform.printer, ListRows(page + lines), kit.shared.JobID, kit.shared.JobName);
  });
}

}  // namespace tamo
