#include "reports/compare.h"

#include <array>

#include "reports/comparelines.h"
#include "reports/comparetable.h"

namespace tamo {
namespace {

constexpr std::array<const char*, 12> kMarkupNames = {
    "material overhead",    "material tax",    "material markup",
    "labor overhead",       "labor tax",       "labor markup",
    "bottom line overhead", "bottom line tax", "bottom line markup",
    "misc. overhead",       "misc. tax",       "misc. markup"};

void MarkupRates(Markups then, Markups now, CompareLines& lines) {
  const auto before = then.InFileOrder();
  const auto after = now.InFileOrder();
  for (size_t i = 0; i < kMarkupNames.size(); ++i) {
    if (*before[i] == *after[i]) continue;
    const auto shown = [](const QString& rate) {
      return rate.isEmpty() ? QStringLiteral("none") : rate;
    };
    lines.Plain(QStringLiteral("  The %1 was %2 and is %3.")
                    .arg(QLatin1String(kMarkupNames[i]), shown(*before[i]), shown(*after[i])));
  }
}

}  // namespace

Report Compare(const ComparedBid& then, const ComparedBid& now, const QString& project) {
  SheetLines sheetsThen;
  SheetLines sheetsNow;
  const BidFigures bidThen = FiguresOfBid(then.source, then.markups, &sheetsThen);
  const BidFigures bidNow = FiguresOfBid(now.source, now.markups, &sheetsNow);
  const BidChanges changes = ChangesBetween(bidThen, bidNow);

  CompareLines lines;
  lines.Head(project, then.words, now.words);
  lines.Total(changes.total);
  lines.MovedMost(changes);
  lines.Systems(changes.systems);
  lines.Figures(QStringLiteral("Items"), changes.items);
  lines.Figures(QStringLiteral("Markups and adjustment"),
                {changes.systemMarkups, changes.itemMarkups, changes.adjustment});
  MarkupRates(then.markups, now.markups, lines);
  lines.Sum(changes);
  lines.Manhours(bidThen.manhours, bidNow.manhours);
  const auto sheets = [&](const char* what, SheetKind kind) {
    lines.Sheets(QLatin1String(what), ChangedSheets(sheetsThen.Of(kind), sheetsNow.Of(kind)));
  };
  sheets("Rooms", SheetKind::Room);
  sheets("Areas", SheetKind::Area);
  if (now.source.table != nullptr) {
    CompareTable table(*now.source.table);
    table.Figures(changes);
    table.Manhours(bidThen.manhours, bidNow.manhours);
    table.Sheets(u"Room",
                 ChangedSheets(sheetsThen.Of(SheetKind::Room), sheetsNow.Of(SheetKind::Room)));
    table.Sheets(u"Area",
                 ChangedSheets(sheetsThen.Of(SheetKind::Area), sheetsNow.Of(SheetKind::Area)));
  }
  Report report;
  report.lines = lines.Take();
  return report;
}

}  // namespace tamo
