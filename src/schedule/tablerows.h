#pragma once

#include <vector>

#include "schedule/placedword.h"
#include "schedule/scheduletable.h"

namespace tamo {

// One row of a table, or a title between rows.
struct RowPlace {
  double top = 0;
  double bottom = 0;
  bool group = false;
  QString text;  // of a title
};

// Divides the words below the heads into rows, sets their `row`, and gives the rows' places.
// `across`: the levels of the rules that cross nearly all of the table, `key` the column with the
// rooms' numbers.
std::vector<RowPlace> RowsOf(std::vector<PlacedWord>& words, const std::vector<double>& across,
                             int key, double top, double bottom);

}  // namespace tamo
