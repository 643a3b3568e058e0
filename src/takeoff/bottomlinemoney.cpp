#include "takeoff/bottomlinemoney.h"

#include <cmath>

#include "common/numbers.h"

namespace tamo {

QString BottomLineMoney(const QString& text) {
  const double value = Value(text);
  if (value == 0) return QStringLiteral("0.00");
  const double cents = std::floor(value * 100 + 0.005);
  const QString digits = NumberText(cents);
  if (std::abs(cents) < 10) {
    return (cents < 0 ? QStringLiteral("-0.0") : QStringLiteral("0.0")) + digits.right(1);
  }
  return digits.chopped(2) + QLatin1Char('.') + digits.right(2);
}

}  // namespace tamo
