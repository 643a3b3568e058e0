#pragma once

#include <QString>
#include <cmath>
#include <initializer_list>
#include <vector>

#include "reports/markupfactors.h"
#include "reports/merge.h"
#include "reports/pricedsystem.h"

namespace tamo {

// The arithmetic of the reports. Rounded, raised and truncated are those of common/numbers.h. Every
// figure that has no answer (a ratio of 0, a result that no number holds) raises a RunTimeFailure
// that names the system and the material.

// The money text of the reports: "0.00" for nothing, otherwise whole cents downward with a point
// before the last two digits (.05, 1.50).
QString MakeMoney(const QString& text);
// A point before the last two digits of a whole number, zeros in front until two digits stand.
QString WithPoint(double hundredths);
// The number that the text of WithPoint is read as; not always a hundredth of it: -5 hundredths are
// shown as ".-5", which is read as 0.
double ReadOddWithPoint(double hundredths);
inline double ReadWithPoint(double hundredths) {
  return hundredths >= 0 && hundredths < 1e15 ? hundredths / 100 : ReadOddWithPoint(hundredths);
}
// The money text of a figure.
QString MoneyText(double dollars);
// The estimated unit price of a recap row as money.
QString UnitPriceText(double price);

// The figures of a block that stand for the next one: a block without a tag keeps what the block
// before it left, also that of another system. Both begin at 0 in each report.
struct StandingFigures {
  double orderQuantity = 0;  // as last left: with waste, raised where the report raises
  double manhours = 0;
};

// Raise a RunTimeFailure that names the system and the material: a ratio to divide by is 0.
[[noreturn]] void RefuseOrderRatio(const PricedBlock& block, const QString& system);
[[noreturn]] void RefuseManhourRatio(const PricedBlock& block, const QString& system);

// Order units for `quantity` takeoff units, before waste; the standing figure without a tag.
inline double OrderQuantity(const PricedBlock& block, double quantity, const QString& system,
                            const StandingFigures& standing) {
  if (block.orderTag == OrderTag::None) return standing.orderQuantity;
  if (block.orderTag == OrderTag::Opu) return quantity * block.ratio;
  if (block.ratio == 0) RefuseOrderRatio(block, system);
  return quantity / block.ratio;
}
// Manhours for `quantity` takeoff units; the standing figure without a tag.
inline double Manhours(const PricedBlock& block, double quantity, const QString& system,
                       const StandingFigures& standing) {
  if (block.laborTag == LaborTag::None) return standing.manhours;
  if (block.laborTag == LaborTag::Mpu) return quantity * block.manhourRatio;
  if (block.manhourRatio == 0) RefuseManhourRatio(block, system);
  return quantity / block.manhourRatio;
}
// `orderQuantity` and its waste.
inline double WithWaste(const PricedBlock& block, double orderQuantity) {
  return orderQuantity + (block.waste / 100) * orderQuantity;
}

// What one material of a row costs before markups.
struct BlockDollars {
  double material = 0;
  double labor = 0;
};
BlockDollars PriceBlock(const PricedBlock& block, double quantity, const QString& system,
                        StandingFigures& standing);

// Raises a RunTimeFailure that names the system and says that a figure is larger than any number.
[[noreturn]] void RefuseFigures(const QString& system);
// The same when one of the figures is.
inline void CheckFigures(std::initializer_list<double> figures, const QString& system) {
  for (const double figure : figures) {
    if (!std::isfinite(figure)) RefuseFigures(system);
  }
}

// What a unit-priced item costs: whole dollars, no markups.
double UnitPricedAmount(double unitPrice, double quantity, const QString& system);

// One row of the recap sheet: every figure rounded for itself, no markup upon another.
struct LineRollUp {
  double rawLabor = 0;     // rounded
  double rawMaterial = 0;  // rounded
  double markups = 0;      // rounded
  double total = 0;        // rounded
  double manhours = 0;     // as it is
  QString unitPrice;       // estimated, as money
};
LineRollUp RollUpLine(const std::vector<PricedBlock>& blocks, double quantity,
                      const QString& system, const MarkupFactors& markups,
                      StandingFigures& standing);

// The whole project by kind of cost: raw sums first, each markup once on the sums.
struct ProjectRollUp {
  double rawLabor = 0;  // RL
  double laborOverhead = 0;
  double laborTax = 0;
  double laborMarkup = 0;
  double totalLabor = 0;
  double rawMaterial = 0;  // RM
  double materialOverhead = 0;
  double materialTax = 0;
  double materialMarkup = 0;
  double totalMaterial = 0;
  double rawBottomLine = 0;  // RB
  double bottomLineOverhead = 0;
  double bottomLineTax = 0;
  double bottomLineMarkup = 0;
  double totalBottomLine = 0;
  double miscOverhead = 0;
  double miscTax = 0;  // shown, but part of no total
  double miscMarkup = 0;
  double totalMisc = 0;
  double totalBid = 0;
  double grossProfit = 0;  // percent
  double netProfit = 0;    // percent
};
// From the raw sums and the adjustment; `sums` has RL, RM and RB set.
ProjectRollUp RollUpProject(const ProjectRollUp& sums, double adjustment,
                            const MarkupFactors& markups);

}  // namespace tamo
