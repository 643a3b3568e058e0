#pragma once

#include <QStringView>

namespace tamo {

// How a takeoff line is read without copying it. Columns count characters from 1, the one in `from`
// is the first. A line that ends before gives what it has, or nothing.

struct ColumnRange {
  qsizetype from;
  qsizetype width;
};
QStringView ColumnsOf(QStringView line, ColumnRange columns);
// The number that stands there; 0 when there is none.
double ValueOf(QStringView line, ColumnRange columns);

// Without blanks (the character, not other white space) at both ends.
QStringView TrimmedBlanks(QStringView text);

// The system that a line of a room or area means: its first 20 characters, trimmed of blanks.
QStringView SystemOfLine(QStringView line);

}  // namespace tamo
