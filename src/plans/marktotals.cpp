#include "plans/marktotals.h"

#include <QMap>
#include <optional>
#include <utility>

#include "plans/marktie.h"

namespace tamo {
namespace {

// "feet" of `10.0 feet @ 1/4"=1'`.
QString UnitOf(const Mark& mark) {
  if (mark.kind == Mark::Kind::Circle) return QStringLiteral("counted");
  return mark.label.section(QLatin1String(" @ "), 0, 0).section(QLatin1Char(' '), 1);
}

}  // namespace

std::vector<MarkTotal> TotalsOf(const std::vector<Mark>& marks, int page) {
  QMap<std::pair<QString, QString>, MarkTotal> systems;
  QMap<QString, MarkTotal> others;
  for (const Mark& mark : marks) {
    if (mark.kind == Mark::Kind::Legend) continue;
    const std::optional<MarkTie> tie = TieOfText(mark.kept);
    if (tie && tie->height) continue;
    const QString unit = tie ? tie->units : UnitOf(mark);
    MarkTotal& total = tie ? systems[{tie->place.system, unit}] : others[unit];
    if (total.colour.isEmpty())
      total = {tie ? tie->place.system : QString(), unit, mark.colour, 0, 0};
    const double quantity = ValueOfMark(mark) * (tie ? tie->factor : 1);
    total.plan += quantity;
    if (mark.page == page) total.sheet += quantity;
  }
  std::vector<MarkTotal> totals(systems.begin(), systems.end());
  totals.insert(totals.end(), others.begin(), others.end());
  return totals;
}

QString TotalInWords(double quantity, const QString& unit) {
  return (LengthText(quantity) + QLatin1Char(' ') + unit).trimmed();
}

QString SystemInWords(const MarkTotal& total) {
  return total.system.isEmpty() ? QStringLiteral("Not entered") : total.system;
}

}  // namespace tamo
