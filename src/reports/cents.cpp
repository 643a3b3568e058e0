#include "reports/cents.h"

#include <cmath>

#include "common/numbers.h"
#include "records/itemline.h"

namespace tamo {
namespace {

QString Plain(double dollars) {
  return QString::number(dollars, 'f', 2);
}

}  // namespace

bool HasCents(double dollars) {
  return dollars != std::floor(dollars);
}

QStringList EntriesWithCents(const QStringList& items, const QString& adjustment) {
  QStringList entries;
  for (const QString& item : items) {
    const double price = ItemPrice(item);
    if (HasCents(price))
      entries += QStringLiteral("the item \"%1\", %2").arg(ItemLine(item).Name(), Plain(price));
  }
  if (adjustment.contains(QLatin1Char('.')) && Value(adjustment) != 0)
    entries += QStringLiteral("the adjustment, %1").arg(Plain(Value(adjustment)));
  return entries;
}

QString CentsNote(const QStringList& entries, const QString& what, double dollars) {
  const QString whose =
      entries.isEmpty()
          ? QStringLiteral("The markup of the bottom line items has cents.")
          : QStringLiteral("Entered with cents: %1.").arg(entries.join(QStringLiteral("; ")));
  return QStringLiteral("%1 %2 in plain figures is %3.").arg(whose, what, Plain(dollars));
}

}  // namespace tamo
