#include "records/linecolumns.h"

#include "common/numbers.h"

namespace tamo {

QStringView ColumnsOf(QStringView line, ColumnRange columns) {
  if (columns.from > line.size()) return {};
  return line.sliced(columns.from - 1, qMin(columns.width, line.size() - columns.from + 1));
}

double ValueOf(QStringView line, ColumnRange columns) {
  return Value(ColumnsOf(line, columns));
}

QStringView TrimmedBlanks(QStringView text) {
  while (!text.isEmpty() && text.front() == u' ') text = text.sliced(1);
  while (!text.isEmpty() && text.back() == u' ') text.chop(1);
  return text;
}

QStringView SystemOfLine(QStringView line) {
  return TrimmedBlanks(line.first(qMin<qsizetype>(20, line.size())));
}

}  // namespace tamo
