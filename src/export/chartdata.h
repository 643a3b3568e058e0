#pragma once

#include <QString>
#include <QStringList>
#include <vector>

#include "common/tablesink.h"

namespace tamo {

// A chart of bars that lie on one another: what each bar is made of, in dollars.
struct ChartData {
  struct Series {
    QString name;
    std::vector<double> dollars;  // of each bar
  };

  QString title;
  QString subtitle;  // the total, the profits
  QStringList bars;
  std::vector<Series> series;

  double Total(size_t bar) const;
  // What the chart says in words, a line for each bar.
  QStringList Lines() const;
};

// Takes the figures of a recap sheet: a bar for each system, the dearest first, made of labor,
// material and markups, or of its unit price. Beyond kMostBars the others share one.
class RecapChart : public TableSink {
 public:
  static constexpr size_t kMostBars = 24;

  void Begin(const std::vector<TableColumn>& columns) override;
  void Row(std::span<const TableCell> cells, RowWeight weight) override;
  ChartData Take(const QString& title) const;

 private:
  struct Bar {
    QString name;
    double labor = 0;
    double material = 0;
    double markups = 0;
    double unitPriced = 0;
    double All() const { return labor + material + markups + unitPriced; }
  };

  std::vector<TableColumn> columns_;
  std::vector<Bar> bars_;
  double total_ = 0;
};

// Takes the figures of a breakdown: a bar for each kind of cost, made of what it costs raw, its
// overhead, tax and markup; gross and net profit under the title.
class BreakDownChart : public TableSink {
 public:
  void Begin(const std::vector<TableColumn>&) override {}
  void Row(std::span<const TableCell> cells, RowWeight weight) override;
  ChartData Take(const QString& title) const;

 private:
  QStringList groups_;
  std::vector<ChartData::Series> series_;
  double total_ = 0;
  double gross_ = 0;
  double net_ = 0;
};

}  // namespace tamo
