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
  QString text;               // of a title
  std::vector<int> doubtful;  // columns in which a line may belong here that went to another row
};

// The column that begins the rows: the numbers, or the names where there are none.
struct RowKey {
  int column = 0;
  ColumnRole role = ColumnRole::Number;
  std::vector<QStringList> heads;  // the words over each column, in capitals
};

// Divides the words below the heads into rows, sets their `row`, and gives the rows' places.
// `across`: the levels of the rules that cross nearly all of the table.
std::vector<RowPlace> RowsOf(std::vector<PlacedWord>& words, const std::vector<double>& across,
                             const RowKey& key, double top, double bottom);

}  // namespace tamo
