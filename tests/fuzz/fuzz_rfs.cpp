// A room file as anybody may have left it: reading it ends, every column that is read keeps its
// width, and what is read and fits is written and read again without a change.
#include <cmath>
#include <cstdint>

#include "common/failure.h"
#include "common/textlines.h"
#include "records/roomfile.h"
#include "records/roomline.h"
#include "records/storable.h"
#include "takeoff/nextname.h"
#include "takeoff/unitcodes.h"

namespace {

void Must(bool holds) {
  if (!holds) __builtin_trap();
}

void CheckLine(const QString& text) {
  const tamo::RoomLine line(text);
  Must(line.System().size() <= 20);
  Must(line.FinishArea().size() <= 10);
  Must(line.QuantityText().size() <= 15);
  Must(std::isfinite(line.Quantity()));
  try {
    const tamo::RoomLine again = tamo::RoomLine::Of(line.System(), line.FinishArea().left(9),
                                                    line.QuantityText(), QStringLiteral("SF"));
    Must(again.System() == line.System());
    Must(tamo::RoomLine::Of(again.System(), again.FinishArea(), again.QuantityText(),
                            QStringLiteral("SF"))
             .Text() == again.Text());
  } catch (const tamo::RunTimeFailure& failure) {
    Must(!failure.text.isEmpty());
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const QString text = tamo::DecodedText(
      QByteArray(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size)));
  const tamo::RoomFile room = tamo::RoomFileOf(text);
  Must(room.hasHeight == !text.isEmpty());
  for (const QString& line : room.lines) CheckLine(line);
  tamo::FindLine(room.lines, room.height);
  try {
    tamo::NextName(room.height);
    tamo::RequireName(QStringLiteral("room"), room.height);
  } catch (const tamo::RunTimeFailure& failure) {
    Must(!failure.text.isEmpty());
  }
  return 0;
}
