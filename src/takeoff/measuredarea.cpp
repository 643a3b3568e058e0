#include "takeoff/measuredarea.h"

#include <cmath>

#include "common/columns.h"
#include "common/numbers.h"
#include "takeoff/unitcodes.h"

namespace tamo {
namespace {

// One decimal, as the plan gives its measures.
QString Tenths(double number) {
  return QString::number(std::floor(std::abs(number) * 10 + 0.5) / 10 * (number < 0 ? -1 : 1), 'f',
                         1);
}

}  // namespace

bool PutArea(const AreaFields& fields, const QString& squareFeet, QString& words) {
  const QString units = TrimmedBlanks(fields.units.Text()).toUpper();
  words.clear();
  if (units.isEmpty())
    words = QStringLiteral("No takeoff line is in work that the area could go to.");
  if (IsLinearOrCount(units))
    words = QStringLiteral(
                "The line in work is taken off in %1, so square feet do not go there. The "
                "perimeter or a polyline gives a length.")
                .arg(units);
  if (!words.isEmpty()) return false;
  QString entry = squareFeet;
  if (units == QLatin1String("SY")) {
    entry = Tenths(GroupedValue(squareFeet) / 9);
    words = QStringLiteral("%1 square feet are %2 square yards.").arg(squareFeet, entry);
  }
  const bool areaStands = GroupedValue(fields.height.Text()) == 1;
  const double stands = areaStands ? GroupedValue(fields.length.Text()) : 0;
  fields.height.SetText(QStringLiteral("1"));
  const bool off = GroupedValue(entry) < 0 && stands != 0;
  fields.length.SetText(off ? Tenths(stands + GroupedValue(entry)) : entry);
  return true;
}

}  // namespace tamo
