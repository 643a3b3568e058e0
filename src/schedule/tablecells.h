#pragma once

#include <vector>

#include "schedule/tablerows.h"

namespace tamo {

// The cells of one row: the words that were given to it, lines joined by a blank. `lone` words are
// turned texts inside the rows.
std::vector<ScheduleCell> CellsOf(const std::vector<PlacedWord>& words, int row, int columns);

// "  P-1/  P-2 " is "P-1/ P-2".
QString Normal(const QString& text);

}  // namespace tamo
