#include "records/linecolumns.h"

namespace tamo {

QStringView TrimmedBlanks(QStringView text) {
  while (!text.isEmpty() && text.front() == u' ') text = text.sliced(1);
  while (!text.isEmpty() && text.back() == u' ') text.chop(1);
  return text;
}

QStringView SystemOfLine(QStringView line) {
  return TrimmedBlanks(line.first(qMin<qsizetype>(20, line.size())));
}

}  // namespace tamo
