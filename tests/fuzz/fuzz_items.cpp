// A project's bottom line items as anybody may have left them.
#include <cstdint>

#include "common/failure.h"
#include "common/textlines.h"
#include "records/itemline.h"
#include "takeoff/bottomlinemoney.h"

namespace {

void Must(bool holds) {
  if (!holds) __builtin_trap();
}

void CheckLine(const QString& text) {
  const tamo::ItemLine line(text);
  Must(line.Name().size() <= 19 && line.SearchName().size() <= 20);
  try {
    const QString money = tamo::BottomLineMoney(line.Price());
    Must(money.size() >= 3 && money[money.size() - 3] == QLatin1Char('.'));
    Must(tamo::ItemLine::Of(line.Name(), money).Text().size() == 30);
  } catch (const tamo::RunTimeFailure& failure) {
    Must(!failure.text.isEmpty());
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const QString text = tamo::DecodedText(
      QByteArray(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size)));
  for (const QString& field : tamo::DelimitedFields(text)) CheckLine(field);
  return 0;
}
