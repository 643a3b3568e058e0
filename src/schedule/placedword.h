#pragma once

#include <vector>

#include "schedule/scheduletable.h"
#include "schedule/tablecolumns.h"

namespace tamo {

// A word of a table's rows with the columns that it belongs to: more than one for a text that one
// cell over several columns holds.
struct PlacedWord {
  const Word* word = nullptr;
  int first = 0;
  int last = 0;
  int row = -1;  // set by the rows
  std::vector<Doubt> doubts;
};

// Gives the words below the heads their columns; texts that cross a border are told.
std::vector<PlacedWord> PlaceWords(const SheetDrawing& drawing, const std::vector<TextLine>& lines,
                                   const ColumnBorders& columns, double top);

}  // namespace tamo
