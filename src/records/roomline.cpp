#include "records/roomline.h"

#include "common/columns.h"
#include "common/numbers.h"
#include "records/linewidths.h"

namespace tamo {

RoomLine RoomLine::Of(const QString& system, const QString& finishArea, const QString& quantity,
                      const QString& units) {
  constexpr int kSystemWidth = 21;
  constexpr int kAreaWidth = 11;
  return RoomLine(
      PaddedRight(Fitting(system, kSystemWidth, QStringLiteral("system name"), {}), kSystemWidth) +
      PaddedRight(Fitting(finishArea, kAreaWidth, QStringLiteral("area"), system), kAreaWidth) +
      PaddedLeft(Fitting(quantity, kQuantityWidth, QStringLiteral("quantity"), system),
                 kQuantityWidth) +
      Blanks(1) + units);
}

QString RoomLine::System() const {
  return TrimmedBlanks(Columns(text_, 1, 20));
}
QString RoomLine::FinishArea() const {
  return TrimmedBlanks(Columns(text_, 21, 10));
}
double RoomLine::Quantity() const {
  return Value(Columns(text_, 33, 14));
}
QString RoomLine::QuantityText() const {
  return TrimmedBlanks(Columns(text_, 32, 15));
}

}  // namespace tamo
