#include "reports/rollup.h"

#include <cmath>

#include "common/failure.h"
#include "common/numbers.h"

namespace tamo {

MarkupFactors::MarkupFactors(const Markups& texts)
    : LOH(Value(texts.LOH)),
      LTX(Value(texts.LTX)),
      LMU(Value(texts.LMU)),
      MOH(Value(texts.MOH)),
      MTX(Value(texts.MTX)),
      MMU(Value(texts.MMU)),
      BLOH(Value(texts.BLOH)),
      BLTX(Value(texts.BLTX)),
      BLMU(Value(texts.BLMU)),
      MIOH(Value(texts.MIOH)),
      MITX(Value(texts.MITX)),
      MIMU(Value(texts.MIMU)) {}

QString WithPoint(double hundredths) {
  QString text = NumberText(hundredths);
  while (text.size() < 2) text.prepend(QLatin1Char('0'));
  text.insert(text.size() - 2, QLatin1Char('.'));
  return text;
}

QString MakeMoney(const QString& text) {
  const double value = Value(text);
  if (value == 0) return QStringLiteral("0.00");
  return WithPoint(Truncated(value * 100 + 0.005));
}

double ReadOddWithPoint(double hundredths) {
  return Value(WithPoint(hundredths));
}

QString MoneyText(double dollars) {
  if (dollars == 0 || std::abs(dollars) >= 1e13 || dollars != std::floor(dollars))
    return MakeMoney(NumberText(dollars));
  return NumberText(dollars) + QStringLiteral(".00");
}

QString UnitPriceText(double price) {
  const double cents = Truncated(price * 100 + 0.05);
  return cents == 0 ? QStringLiteral("0.00") : WithPoint(cents);
}

namespace {

[[noreturn]] void RefuseRatio(const QString& system, const PricedBlock& block,
                              const QString& what) {
  throw RunTimeFailure(
      kDivisionByZero,
      QStringLiteral(
          "The report can't be made: in the system \"%1\" the material \"%2\" has a %3 of 0, and "
          "nothing can be divided by 0. Correct it in Unit Pricing, then run the report again.")
          .arg(system, block.material, what));
}

[[noreturn]] void RefuseQuantity(const QString& system) {
  throw RunTimeFailure(kDivisionByZero,
                       QStringLiteral("The system \"%1\" has no quantity.").arg(system));
}

}  // namespace

void RefuseOrderRatio(const PricedBlock& block, const QString& system) {
  RefuseRatio(system, block, QStringLiteral("number of units per order unit"));
}

void RefuseManhourRatio(const PricedBlock& block, const QString& system) {
  RefuseRatio(system, block, QStringLiteral("number of units per manhour"));
}

BlockDollars PriceBlock(const PricedBlock& block, double quantity, const QString& system,
                        StandingFigures& standing) {
  BlockDollars dollars;
  double order = OrderQuantity(block, quantity, system, standing);
  order = std::floor(order * 1000) / 1000;
  order = Raised(WithWaste(block, order));
  standing.orderQuantity = order;
  dollars.material = Rounded(order * block.price);
  // The least that can be bought of a material is one order unit, and the least of labor an hour.
  if (block.price > dollars.material) dollars.material = block.price;

  standing.manhours = Manhours(block, quantity, system, standing);
  dollars.labor = Raised(standing.manhours * block.wage);
  if (block.wage > dollars.labor) dollars.labor = block.wage;
  CheckFigures({dollars.material, dollars.labor, standing.manhours}, system);
  return dollars;
}

void RefuseFigures(const QString& system) {
  throw RunTimeFailure(
      kOverflow,
      QStringLiteral("The report can't be made: the figures of the system \"%1\" grow larger than "
                     "any number that can be worked with. Look for a quantity, price or ratio "
                     "that was mistyped, then run the report again.")
          .arg(system));
}

double UnitPricedAmount(double unitPrice, double quantity, const QString& system) {
  const double amount = Rounded(unitPrice * quantity);
  CheckFigures({amount}, system);
  return amount;
}

LineRollUp RollUpLine(const std::vector<PricedBlock>& blocks, double quantity,
                      const QString& system, const MarkupFactors& markups,
                      StandingFigures& standing) {
  LineRollUp line;
  double labor = 0;
  double material = 0;
  for (const PricedBlock& block : blocks) {
    const BlockDollars dollars = PriceBlock(block, quantity, system, standing);
    material += dollars.material;
    labor += dollars.labor;
    line.manhours += standing.manhours;
  }
  const double laborMarkups =
      Rounded(markups.LOH * labor + markups.LTX * labor + markups.LMU * labor +
              markups.MIOH * labor + markups.MITX * labor + markups.MIMU * labor);
  const double materialMarkups = markups.MOH * material + markups.MTX * material +
                                 markups.MMU * material + markups.MIOH * material +
                                 markups.MITX * material + markups.MIMU * material;
  line.markups = Rounded(laborMarkups + materialMarkups);
  line.rawMaterial = Rounded(material);
  line.rawLabor = Rounded(labor);
  line.total = Rounded(line.rawLabor + line.rawMaterial + line.markups);
  CheckFigures({line.markups, line.total}, system);
  if (quantity == 0) RefuseQuantity(system);
  line.unitPrice = UnitPriceText(line.total / quantity);
  return line;
}

ProjectRollUp RollUpProject(const ProjectRollUp& sums, double adjustment,
                            const MarkupFactors& markups) {
  ProjectRollUp p = sums;
  const double RL = p.rawLabor;
  p.laborOverhead = Rounded(markups.LOH * RL);
  p.laborTax = Truncated(markups.LTX * RL);
  p.laborMarkup = Rounded(markups.LMU * RL);
  p.totalLabor = RL + p.laborOverhead + p.laborTax + p.laborMarkup;

  p.rawMaterial = Rounded(p.rawMaterial);
  const double RM = p.rawMaterial;
  p.materialOverhead = Rounded(markups.MOH * RM);
  p.materialTax = Truncated(markups.MTX * RM);
  p.materialMarkup = Rounded(markups.MMU * RM);

  const double RB = p.rawBottomLine;
  p.bottomLineOverhead = Truncated(markups.BLOH * RB);
  p.bottomLineTax = Truncated(markups.BLTX * RB);
  p.bottomLineMarkup = Truncated(markups.BLMU * RB);
  p.totalBottomLine = RB + p.bottomLineOverhead + p.bottomLineTax + p.bottomLineMarkup;

  p.miscOverhead = Rounded((RL + RM + RB) * markups.MIOH);
  p.miscTax = Rounded((RL + RM + RB) * markups.MITX);
  // The misc. markup also lies on the material tax; a test holds it.
  p.miscMarkup = Rounded((p.materialTax + RL + RM + RB) * markups.MIMU);
  // The misc. tax is shown in its own line and is part of neither this total nor the bid.
  p.totalMisc = p.miscMarkup + p.miscOverhead;
  p.totalMaterial = Rounded(RM + p.materialOverhead + p.materialTax + p.materialMarkup);
  p.totalBid = Rounded(p.totalMaterial + p.totalLabor + p.totalBottomLine + p.totalMisc);

  const double markupSum = p.materialMarkup + p.laborMarkup + p.bottomLineMarkup;
  const QString noCosts = QStringLiteral(
      "The breakdown can't be made: this project has no labor, material or bottom line costs to "
      "take a profit from. A project of unit-priced items alone has no breakdown; the Recap "
      "Overview shows its total.");
  p.grossProfit = Truncated(Divided(markupSum, RL + RM + RB, noCosts) * 100);
  const double costs = RL + RM + RB + p.laborOverhead + p.materialOverhead + p.bottomLineOverhead +
                       p.materialTax + p.laborTax + p.bottomLineTax + p.laborMarkup +
                       p.materialMarkup + p.bottomLineMarkup;
  p.netProfit = Truncated(Divided(markupSum, costs, noCosts) * 100);
  if (adjustment != 0) p.totalBid += adjustment;
  return p;
}

}  // namespace tamo
