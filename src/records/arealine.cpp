#include "records/arealine.h"

#include "common/columns.h"
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
  return SystemOfLine(text_).toString();
}
double AreaLine::LinearQuantity() const {
  return ValueOf(text_, kAreaQuantityMerged);
}
double AreaLine::SurfaceQuantity() const {
  return ValueOf(text_, {22, 15});
}
QString AreaLine::UnitsStopgap() const {
  return TrimmedBlanks(From(text_, 32));
}

QStringView UnitsOfAreaLine(QStringView line) {
  return TrimmedBlanks(ColumnsOf(line, {36, line.size()}));
}

}  // namespace tamo
