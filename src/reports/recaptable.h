#pragma once

#include <vector>

#include "common/tablesink.h"
#include "reports/markupfactors.h"
#include "reports/merge.h"
#include "reports/rollup.h"

namespace tamo {

// The recap sheet as a table: a row for each system, item and total. The figures are those of the
// lines, but for an item's markup, which counts with its cents. Does nothing without a sink.
class RecapTable {
 public:
  RecapTable(TableSink* sink, bool detailed);

  void Priced(const MergedRow& row, const LineRollUp& line, const MarkupFactors& markups);
  void UnitPriced(const MergedRow& row, double unitPrice, double amount);
  void Item(const QString& line, double price, double markup);
  void Adjustment(double dollars);
  void Total(const QString& label, double dollars);
  void Manhours(double hours);

 private:
  std::vector<TableCell> Begin(QStringView kind, QStringView name) const;
  void Add(const std::vector<TableCell>& cells, RowWeight weight = RowWeight::Plain);

  TableSink* sink_;
  bool detailed_;
  size_t columns_;
};

}  // namespace tamo
