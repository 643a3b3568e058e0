#include "reports/linequantity.h"

#include "common/numbers.h"

namespace tamo {

double QuantityAt(QStringView line, qsizetype from, qsizetype width) {
  if (from > line.size()) return 0;
  return Value(line.sliced(from - 1, qMin(width, line.size() - from + 1)));
}

double WholeQuantity(SheetKind kind, QStringView line) {
  return QuantityAt(line, kind == SheetKind::Room ? 33 : 22, 14);
}

}  // namespace tamo
