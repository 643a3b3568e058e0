// Whatever bytes a file holds, reading them ends, and what is read keeps its promises: records hold
// no line ends, fields no commas, numbers are written the way they are read back.

#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <cstring>

#include "common/failure.h"
#include "common/numbers.h"
#include "common/textlines.h"

namespace {

void Must(bool holds) {
  if (!holds) std::abort();
}

bool HasLineEnd(const QString& text) {
  return text.contains(QLatin1Char('\r')) || text.contains(QLatin1Char('\n'));
}

void CheckNumber(double number) {
  using namespace tamo;
  if (!std::isfinite(number)) return;
  const QString text = NumberText(number);
  for (const QChar c : text) Must(c.isDigit() || c == QLatin1Char('.') || c == QLatin1Char('-'));
  try {
    Must(NumberText(Value(text)) == text);
  } catch (const RunTimeFailure& failure) {
    Must(failure.number == kOverflow);  // the greatest doubles, rounded up to 15 digits
  }
}

void CheckValue(const QString& text) {
  using namespace tamo;
  try {
    CheckNumber(Value(text));
    CheckNumber(GroupedValue(text));
  } catch (const RunTimeFailure& failure) {
    Must(failure.number == kOverflow);
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  using namespace tamo;
  const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
  const QString text = DecodedText(bytes);
  const QStringList lines = WholeLines(text);
  for (const QString& line : lines) {
    Must(!HasLineEnd(line));
    CheckValue(line);
  }
  Must(WholeLines(JoinedLines(lines)) == lines);
  for (const QString& field : DelimitedFields(text)) {
    Must(!HasLineEnd(field) && !field.contains(QLatin1Char(',')));
    Must(!field.startsWith(QLatin1Char(' ')));
  }
  if (size >= sizeof(double)) {
    double number = 0;
    std::memcpy(&number, data, sizeof number);
    CheckNumber(number);
  }
  return 0;
}
