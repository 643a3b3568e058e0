#include "records/linecolumns.h"

namespace tamo {

QStringView TrimmedBlanks(QStringView text) {
  const char16_t* begin = text.utf16();
  const char16_t* end = begin + text.size();
  while (begin < end && *begin == u' ') ++begin;
  while (end > begin && end[-1] == u' ') --end;
  return {begin, end};
}

QStringView SystemOfLine(QStringView line) {
  return TrimmedBlanks(line.first(qMin<qsizetype>(20, line.size())));
}

}  // namespace tamo
