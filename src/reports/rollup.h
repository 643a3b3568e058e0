#pragma once

#include <QString>
#include <cmath>
#include <initializer_list>
#include <vector>

#include "reports/markupsource.h"
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
double ReadWithPoint(double hundredths);
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

// Order units for `quantity` takeoff units, before waste; the standing figure without a tag.
double OrderQuantity(const PricedBlock& block, double quantity, const QString& system,
                     const StandingFigures& standing);
// Manhours for `quantity` takeoff units; the standing figure without a tag.
double Manhours(const PricedBlock& block, double quantity, const QString& system,
                const StandingFigures& standing);
// `orderQuantity` and its waste.
double WithWaste(const PricedBlock& block, double orderQuantity);

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
