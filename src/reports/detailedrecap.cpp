#include "common/columns.h"
#include "common/numbers.h"
#include "reports/merge.h"
#include "reports/notebook.h"
#include "reports/recap.h"
#include "reports/rollup.h"
#include "reports/systemshelf.h"

namespace tamo {
namespace {

const QString kCents = QStringLiteral(".00");

// What a material or a whole sheet costs.
struct Costs {
  double labor = 0;
  double material = 0;
  double markups = 0;
  double laborTax = 0;

  void Add(const Costs& other) {
    labor += other.labor;
    material += other.material;
    markups += other.markups;
    laborTax += other.laborTax;
  }
};

class DetailedSheet {
 public:
  DetailedSheet(const ReportSource& source, const Markups& markups)
      : shelf_(source), markups_(markups) {
    Line(QStringLiteral("Recap Sheet"));
    Line({});
  }

  SystemsAhead& Systems() { return shelf_.Ahead(); }

  void Row(const MergedRow& row) {
    if (row.value == 0) return;
    shelf_.Load(row.name);
    notes_.NoteSystem(shelf_, row.name, static_cast<int>(report_.lines.size()));
    Line(QStringLiteral("  ") + row.name + QStringLiteral("  ") + row.quantity +
         QStringLiteral(" EUP ") + row.units);
    Costs costs;
    if (shelf_.UnitPrice() != 0) {
      unitPriced_ += UnitPricedAmount(shelf_.UnitPrice(), row.value, row.name);
      Line(Blanks(5) + row.name + QStringLiteral("  @ ") + shelf_.UnitPriceText() + kCents);
    } else {
      for (const PricedBlock& block : shelf_.Blocks()) costs.Add(Material(block, row));
    }
    Line(QStringLiteral("Labor    ") + Dollars(costs.labor));
    Line(QStringLiteral("Material ") + Dollars(costs.material));
    Line(QStringLiteral("Markups  ") + Dollars(costs.markups));
    Line({});
    sums_.Add(costs);
  }

  Report Take() {
    const double cost = sums_.labor + sums_.material;
    Line(QString(64, QLatin1Char('_')));
    Line(QStringLiteral("     Total  ") + QLatin1Char('$') +
         Dollars(cost + sums_.markups + unitPriced_));
    Line(QStringLiteral("          Labor") + Amount(sums_.labor));
    Line(QStringLiteral("          Material") + Amount(sums_.material));
    Line(QStringLiteral("     Cost") + Amount(cost));
    Line(QStringLiteral("          Labor Tax") + Amount(sums_.laborTax));
    report_.notes = notes_.Take();
    return std::move(report_);
  }

 private:
  void Line(const QString& line) { report_.lines += line; }
  static QString Dollars(double figure) { return NumberText(Rounded(figure)) + kCents; }
  static QString Amount(double figure) { return QStringLiteral("  ") + Dollars(figure); }

  Costs Material(const PricedBlock& block, const MergedRow& row) {
    const double order =
        Raised(WithWaste(block, OrderQuantity(block, row.value, row.name, standing_)));
    standing_.orderQuantity = order;
    standing_.manhours = Manhours(block, row.value, row.name, standing_);
    Costs costs;
    costs.material = order * block.price;
    costs.labor = standing_.manhours * block.wage;
    costs.laborTax = markups_.LTX * costs.labor;
    const double misc = markups_.MIOH + markups_.MITX + markups_.MIMU;
    costs.markups = (markups_.MOH + markups_.MTX + markups_.MMU + misc) * costs.material +
                    (markups_.LOH + markups_.LTX + markups_.LMU + misc) * costs.labor;
    CheckFigures({costs.material, costs.labor, costs.markups}, row.name);
    const QString price = NumberText(block.price) + kCents;
    Line(Blanks(5) + block.material + QStringLiteral("  @ ") + price);
    Line(QStringLiteral("     Labor    ") + NumberText(standing_.manhours) +
         QStringLiteral(" hrs. @ ") + NumberText(block.wage) + kCents);
    Line(QStringLiteral("     Material ") + NumberText(order) + QLatin1Char(' ') + block.orderUnit +
         QStringLiteral(" @ ") + price);
    return costs;
  }

  SystemShelf shelf_;
  MarkupFactors markups_;
  StandingFigures standing_;
  Report report_;
  NoteBook notes_;
  Costs sums_;
  double unitPriced_ = 0;
};

}  // namespace

Report DetailedRecapSheet(const ReportSource& source, const Markups& markups) {
  DetailedSheet sheet(source, markups);
  ForEachRow(source, Calculate(source, &sheet.Systems()),
             [&](const MergedRow& row) { sheet.Row(row); });
  return sheet.Take();
}

}  // namespace tamo
