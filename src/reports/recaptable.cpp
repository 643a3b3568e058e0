#include "reports/recaptable.h"

#include "common/numbers.h"
#include "records/itemline.h"

namespace tamo {
namespace {

TableColumn Money(const char* name) {
  return {QLatin1String(name), ColumnKind::Money};
}

// What stands in the same place of every row.
constexpr size_t kQuantity = 2;
constexpr size_t kUnit = 3;
constexpr size_t kUnitPrice = 4;
constexpr size_t kFirstCost = 5;

std::vector<TableColumn> Columns(bool detailed) {
  std::vector<TableColumn> columns = {{QStringLiteral("Line"), ColumnKind::Text, 12},
                                      {QStringLiteral("Name"), ColumnKind::Text},
                                      {QStringLiteral("Quantity"), ColumnKind::Number},
                                      {QStringLiteral("Unit"), ColumnKind::Text, 10},
                                      Money("Unit price")};
  if (detailed) {
    for (const char* name :
         {"Raw labor", "Labor overhead", "Labor tax", "Labor markup", "Misc. overhead on labor",
          "Misc. tax on labor", "Misc. markup on labor", "Raw material", "Material overhead",
          "Material tax", "Material markup", "Misc. overhead on material", "Misc. tax on material",
          "Misc. markup on material"})
      columns.push_back(Money(name));
  } else {
    for (const char* name : {"Labor", "Material"}) columns.push_back(Money(name));
  }
  columns.push_back(Money("Markups"));
  columns.push_back(Money("Total"));
  return columns;
}

}  // namespace

RecapTable::RecapTable(TableSink* sink, bool detailed)
    : sink_(sink), detailed_(detailed), columns_(Columns(detailed).size()) {
  if (sink_ != nullptr) sink_->Begin(Columns(detailed));
}

std::vector<TableCell> RecapTable::Begin(QStringView kind, QStringView name) const {
  std::vector<TableCell> cells(columns_);
  cells[0] = kind;
  cells[1] = name;
  return cells;
}

void RecapTable::Add(const std::vector<TableCell>& cells, RowWeight weight) {
  sink_->Row(cells, weight);
}

void RecapTable::Priced(const MergedRow& row, const LineRollUp& line,
                        const MarkupFactors& markups) {
  if (sink_ == nullptr) return;
  std::vector<TableCell> cells = Begin(u"System", row.name);
  cells[kQuantity] = row.value;
  cells[kUnit] = row.units;
  cells[kUnitPrice] = Value(line.unitPrice);
  size_t at = kFirstCost;
  const auto cost = [&](double raw, std::initializer_list<double> rates) {
    cells[at++] = raw;
    if (!detailed_) return;
    for (const double rate : rates) cells[at++] = Truncated(rate * raw);
  };
  cost(line.rawLabor,
       {markups.LOH, markups.LTX, markups.LMU, markups.MIOH, markups.MITX, markups.MIMU});
  cost(line.rawMaterial,
       {markups.MOH, markups.MTX, markups.MMU, markups.MIOH, markups.MITX, markups.MIMU});
  if (!detailed_) cells[columns_ - 2] = line.markups;  // otherwise each has a column of its own
  cells[columns_ - 1] = line.total;
  Add(cells);
}

void RecapTable::UnitPriced(const MergedRow& row, double unitPrice, double amount) {
  if (sink_ == nullptr) return;
  std::vector<TableCell> cells = Begin(u"System", row.name);
  cells[kQuantity] = row.value;
  cells[kUnit] = row.units;
  cells[kUnitPrice] = unitPrice;
  cells[columns_ - 1] = amount;
  Add(cells);
}

void RecapTable::Item(const QString& line, double price, double markup) {
  if (sink_ == nullptr) return;
  const QString name = ItemLine(line).SearchName();
  std::vector<TableCell> cells = Begin(u"Item", name);
  cells[kUnitPrice] = price;
  cells[columns_ - 2] = markup;
  cells[columns_ - 1] = price + markup;
  Add(cells);
}

void RecapTable::Adjustment(double dollars) {
  if (sink_ == nullptr) return;
  std::vector<TableCell> cells = Begin(u"Adjustment", {});
  cells[columns_ - 1] = dollars;
  Add(cells);
}

void RecapTable::Total(const QString& label, double dollars) {
  if (sink_ == nullptr) return;
  std::vector<TableCell> cells = Begin(label, {});
  cells[columns_ - 1] = dollars;
  Add(cells, RowWeight::Total);
}

void RecapTable::Manhours(double hours) {
  if (sink_ == nullptr) return;
  std::vector<TableCell> cells = Begin(u"Manhours", u"excluding unit priced items");
  cells[kQuantity] = hours;
  cells[kUnit] = u"hours";
  Add(cells);
}

}  // namespace tamo
