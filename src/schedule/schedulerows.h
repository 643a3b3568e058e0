#pragma once

#include <QStringList>
#include <array>
#include <vector>

#include "schedule/scheduletable.h"

namespace tamo {

inline constexpr int kScheduleCells = 10;

// What a room of a finish schedule needs, whatever columns the sheet had: number, name, floor,
// base, north, east, south, west, ceiling (a blank and its height behind it), remarks.
struct FinishRow {
  std::array<QString, kScheduleCells> cells;
  std::array<std::vector<Doubt>, kScheduleCells> doubts;
  QString height;  // the ceiling's height alone
  int part = 0;    // where it came from: which part, and which of its rows
  int row = 0;

  QString Text() const;  // the ten cells, separated by tabs
};

// The rows of all parts together, in reading order; ditto marks resolved, walls without sides in
// all four.
std::vector<FinishRow> FinishRowsOf(const std::vector<ScheduleTable>& parts);

// Which of the ten cells a column of a meaning fills; a height is in the ceiling's.
std::vector<int> CellsFor(ColumnRole role);

// The column whose text in a row lies under a place on the sheet; -1.
int ColumnUnder(const ScheduleTable& table, size_t row, PagePoint at);

bool IsDitto(const QString& text);

}  // namespace tamo
