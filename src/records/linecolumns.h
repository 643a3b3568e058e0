#pragma once

#include <QStringView>

#include "common/numbers.h"

namespace tamo {

// How a takeoff line is read without copying it. Columns count characters from 1, the one in `from`
// is the first. A line that ends before gives what it has, or nothing.

struct ColumnRange {
  qsizetype from;
  qsizetype width;
};
inline QStringView ColumnsOf(QStringView line, ColumnRange columns) {
  if (columns.from > line.size()) return {};
  return line.sliced(columns.from - 1, qMin(columns.width, line.size() - columns.from + 1));
}

// The number that stands there; 0 when there is none.
inline double ValueOf(QStringView line, ColumnRange columns) {
  return Value(ColumnsOf(line, columns));
}

// Without blanks (the character, not other white space) at both ends.
QStringView TrimmedBlanks(QStringView text);

// The system that a line of a room or area means: its first 20 characters, trimmed of blanks.
QStringView SystemOfLine(QStringView line);

}  // namespace tamo
