#include "pricing/palette.h"

#include <algorithm>

#include "common/numbers.h"

namespace tamo {

QString ShownColour(const QString& code) {
  if (code.isEmpty() || code == QLatin1String("NoColor")) return {};
  QString shown;
  for (const QString& channel : {code.left(3), code.mid(3, 3), code.right(3)}) {
    const int value = static_cast<int>(std::clamp(Truncated(Value(channel)), 0.0, 255.0));
    shown += QStringLiteral("%1").arg(value, 3, 10, QLatin1Char('0'));
  }
  return shown;
}

}  // namespace tamo
