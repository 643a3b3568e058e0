#pragma once

#include <vector>

#include "common/tablesink.h"
#include "reports/bidchanges.h"
#include "reports/sheetlines.h"

namespace tamo {

// What lies between two bids as a table: a row for each system, item, markup, total, room and area
// that is not what it was, and one for all systems that are.
class CompareTable {
 public:
  explicit CompareTable(TableSink& sink);

  void Figures(const BidChanges& changes);
  void Manhours(double then, double now);
  void Sheets(QStringView kind, const std::vector<SheetChange>& sheets);

 private:
  void System(const SystemChange& change);
  void Figure(QStringView kind, const FigureChange& change, RowWeight weight = RowWeight::Plain);

  TableSink& sink_;
};

}  // namespace tamo
