#include "reports/linequantity.h"

#include "records/arealine.h"
#include "records/roomline.h"

namespace tamo {

double QuantityAt(QStringView line, qsizetype from, qsizetype width) {
  return ValueOf(line, {from, width});
}

double WholeQuantity(SheetKind kind, QStringView line) {
  return ValueOf(line, kind == SheetKind::Room ? kRoomQuantity : kAreaQuantity);
}

}  // namespace tamo
