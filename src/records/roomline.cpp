#include "records/roomline.h"

#include "common/columns.h"
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
  return SystemOfLine(text_).toString();
}
QString RoomLine::FinishArea() const {
  return TrimmedBlanks(ColumnsOf(text_, {21, 10})).toString();
}
double RoomLine::Quantity() const {
  return ValueOf(text_, kRoomQuantity);
}
QString RoomLine::QuantityText() const {
  return TrimmedBlanks(ColumnsOf(text_, kRoomQuantityMerged)).toString();
}

QStringView UnitsOfRoomLine(QStringView line) {
  const qsizetype from = line.size() > 46 ? 48 : 44;
  return TrimmedBlanks(ColumnsOf(line, {from, line.size()}));
}

}  // namespace tamo
