#include "player/values.h"

#include <QDir>
#include <algorithm>
#include <cmath>

#include "common/numbers.h"
#include "player/caret.h"

namespace tamo::player {

QString ShortNumber(double number) {
  const double cut = std::floor(number * 100 + 0.5) / 100;
  return NumberText(cut == 0 ? 0 : cut);
}

QString MarkLine(const Mark& mark) {
  const auto place = [&](size_t at) {
    if (at >= mark.points.size()) return QStringLiteral("? ?");
    return ShortNumber(mark.points[at].x) + QLatin1Char(' ') + ShortNumber(mark.points[at].y);
  };
  if (mark.kind == Mark::Kind::Circle)
    return QStringLiteral("circle %1 %2 %3").arg(mark.page).arg(place(0), mark.colour);
  if (mark.kind == Mark::Kind::Legend)
    return QStringLiteral("legend %1 %2 %3 ").arg(mark.page).arg(place(0), mark.colour) +
           QString(mark.label).replace(QLatin1Char('\n'), QStringLiteral(" | "));
  QString line = QLatin1String(IsOutline(mark.kind)                ? "polygon"
                               : mark.kind == Mark::Kind::Polyline ? "polyline"
                                                                   : "line");
  line += QLatin1Char(' ') + QString::number(mark.page);
  for (size_t i = 0; i < std::max<size_t>(2, mark.points.size()); ++i)
    line += QLatin1Char(' ') + place(i);
  return line + QLatin1Char(' ') + mark.colour + QLatin1Char(' ') + ShortNumber(mark.width) +
         QLatin1Char(' ') + mark.label;
}

QString ChosenLine(const PdfDraw& viewer) {
  const Mark* mark = viewer.Hand().Chosen();
  if (mark == nullptr) return QStringLiteral("none");
  QString line = MarkLine(*mark);
  if (viewer.Hand().Point() >= 0)
    line += QStringLiteral(", point %1").arg(viewer.Hand().Point() + 1);
  return mark->title.isEmpty() ? line : line + QStringLiteral(", \"%1\"").arg(mark->title);
}

bool PatternTakes(const FileBrowser& browser, const QString& fileName) {
  return browser.Pattern().isEmpty() || QDir::match(browser.Pattern(), fileName);
}

QStringList FileRows(const FileBrowser& browser) {
  QStringList rows;
  if (browser.Folder().isEmpty()) return rows;
  for (const QString& name : QDir(browser.Folder()).entryList(QDir::Files, QDir::Name)) {
    if (PatternTakes(browser, name)) rows += name;
  }
  return rows;
}

QStringList ControlLines(const Control& control) {
  if (const auto* field = dynamic_cast<const TextField*>(&control))
    return ShownLines(field->Text());
  if (const auto* list = dynamic_cast<const OrderedList*>(&control)) {
    QStringList lines;
    for (const QString& row : list->Rows()) lines += Shown(row);
    return lines;
  }
  if (const auto* box = dynamic_cast<const CheckBox*>(&control))
    return {QString::number(box->Value())};
  if (const auto* option = dynamic_cast<const Option*>(&control))
    return {QString::number(option->Selected() ? 1 : 0)};
  if (const auto* bar = dynamic_cast<const ScrollBar*>(&control))
    return {QString::number(bar->Value())};
  if (const auto* browser = dynamic_cast<const FileBrowser*>(&control))
    return browser->GetKind() == FileBrowser::Kind::File ? FileRows(*browser)
                                                         : ShownLines(browser->Folder());
  if (const auto* captioned = dynamic_cast<const Captioned*>(&control))
    return ShownLines(captioned->Caption());
  if (const auto* frame = dynamic_cast<const Frame*>(&control)) return ShownLines(frame->Caption());
  return {};
}

}  // namespace tamo::player
