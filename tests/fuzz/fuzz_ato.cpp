// A file of free takeoff lines as anybody may have left it, read by whole lines and by fields.
#include <cmath>
#include <cstdint>

#include "common/failure.h"
#include "common/numbers.h"
#include "common/textlines.h"
#include "records/arealine.h"
#include "takeoff/unitcodes.h"

namespace {

void Must(bool holds) {
  if (!holds) __builtin_trap();
}

void CheckLine(const QString& text) {
  const tamo::AreaLine line(text);
  Must(line.System().size() <= 20);
  Must(std::isfinite(line.LinearQuantity()) && std::isfinite(line.SurfaceQuantity()));
  Must(line.UnitsStopgap().size() <= text.size());
  try {
    const double quantity = tamo::Rounded(line.LinearQuantity());
    const tamo::AreaLine again =
        tamo::AreaLine::Of(line.System(), tamo::NumberText(quantity), QStringLiteral("SF"));
    Must(again.System() == line.System() || line.System().contains(QLatin1Char('\t')));
    Must(again.LinearQuantity() == quantity && again.SurfaceQuantity() == quantity);
  } catch (const tamo::RunTimeFailure& failure) {
    Must(!failure.text.isEmpty());
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const QString text = tamo::DecodedText(
      QByteArray(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size)));
  const QStringList fields = tamo::DelimitedFields(text);
  for (const QString& line : fields) CheckLine(line);
  for (const QString& line : tamo::WholeLines(text)) CheckLine(line);
  if (!fields.isEmpty()) Must(tamo::FindLine(fields, fields.last()) < fields.size());
  return 0;
}
