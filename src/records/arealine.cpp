#include "records/arealine.h"

#include "common/columns.h"
#include "common/numbers.h"
#include "records/linewidths.h"

namespace tamo {

AreaLine AreaLine::Of(const QString& system, const QString& quantity, const QString& units) {
  constexpr int kSystemWidth = 20;
  constexpr int kQuantityEnd = 35;
  Fitting(system, kSystemWidth, QStringLiteral("system name"), {});
  Fitting(quantity, kQuantityWidth, QStringLiteral("quantity"), system);
  return AreaLine(system + PaddedLeft(quantity, kQuantityEnd - system.size()) + Blanks(1) + units);
}

QString AreaLine::System() const {
  return TrimmedBlanks(Columns(text_, 1, 20));
}
double AreaLine::LinearQuantity() const {
  return Value(Columns(text_, 21, 15));
}
double AreaLine::SurfaceQuantity() const {
  return Value(Columns(text_, 22, 15));
}
QString AreaLine::UnitsStopgap() const {
  return TrimmedBlanks(From(text_, 32));
}

}  // namespace tamo
