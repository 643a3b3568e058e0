#include "reports/rollup.h"

#include <gtest/gtest.h>

#include <limits>

#include "common/failure.h"

namespace tamo::test {
namespace {

#define S(text) QStringLiteral(text)

PricedBlock Block(double price, double ratio, OrderTag tag, double waste = 0) {
  PricedBlock block;
  block.material = S("Stuff");
  block.price = price;
  block.ratio = ratio;
  block.orderTag = tag;
  block.waste = waste;
  block.manhourRatio = 1;
  block.laborTag = LaborTag::Upm;
  return block;
}

PricedBlock Labor(double wage, double ratio, LaborTag tag) {
  PricedBlock block = Block(0, 1, OrderTag::Upo);
  block.wage = wage;
  block.manhourRatio = ratio;
  block.laborTag = tag;
  return block;
}

struct OrderRow {
  double quantity;
  double ratio;
  OrderTag tag;
  double waste;
  double ordered;  // order units
};
class OrderTable : public ::testing::TestWithParam<OrderRow> {};

TEST_P(OrderTable, OrderUnitsAreRaised) {
  const OrderRow& row = GetParam();
  StandingFigures standing;
  const BlockDollars dollars =
      PriceBlock(Block(1, row.ratio, row.tag, row.waste), row.quantity, S("Sys"), standing);
  EXPECT_EQ(standing.orderQuantity, row.ordered);
  EXPECT_EQ(dollars.material, row.ordered <= 0 ? 1 : row.ordered);  // never less than one price
}

INSTANTIATE_TEST_SUITE_P(
    Rollup, OrderTable,
    ::testing::Values(OrderRow{100, 8, OrderTag::Upo, 0, 13},      // 12.5
                      OrderRow{12.1, 1, OrderTag::Upo, 0, 13},     // 12.1 is raised, too
                      OrderRow{12.09, 1, OrderTag::Upo, 0, 12},    // 12.09 stays
                      OrderRow{12, 1, OrderTag::Upo, 0, 12},       //
                      OrderRow{1, 1000, OrderTag::Upo, 0, 0},      // .001
                      OrderRow{10, 1.25, OrderTag::Opu, 0, 13},    // 12.5
                      OrderRow{100, 10, OrderTag::Upo, 10, 11},    // 10 and its waste
                      OrderRow{100, 10, OrderTag::Upo, .5, 10},    // 10.05
                      OrderRow{100, 3, OrderTag::Upo, 3, 35},      // 33.333 + .99999: 34.33299
                      OrderRow{12.0999, 1, OrderTag::Upo, 0, 12},  // cut to 12.099 first
                      OrderRow{-10, 1, OrderTag::Upo, 0, -10},     //
                      OrderRow{-12.5, 1, OrderTag::Upo, 0, -12}));

struct LaborRow {
  double manhours;
  double wage;
  double dollars;
};
class LaborTable : public ::testing::TestWithParam<LaborRow> {};

TEST_P(LaborTable, LaborDollarsAreRaised) {
  const LaborRow& row = GetParam();
  StandingFigures standing;
  const BlockDollars dollars =
      PriceBlock(Labor(row.wage, 1, LaborTag::Mpu), row.manhours, S("Sys"), standing);
  EXPECT_EQ(standing.manhours, row.manhours);
  EXPECT_EQ(dollars.labor, row.dollars);
}

INSTANTIATE_TEST_SUITE_P(Rollup, LaborTable,
                         ::testing::Values(LaborRow{7.05, 1, 7}, LaborRow{7.11, 1, 8},
                                           LaborRow{10, 46.5, 465}, LaborRow{2.5, 40.1, 101},
                                           // The least charge is one hour, as it stands.
                                           LaborRow{.5, 46.5, 46.5}, LaborRow{0, 46.5, 46.5}));

TEST(Block, AMaterialOf250At1000UnitsPerOrderCostsAtLeastItsPrice) {
  StandingFigures standing;
  EXPECT_EQ(PriceBlock(Block(250, 1000, OrderTag::Upo), 1, S("Sys"), standing).material, 250);
  EXPECT_EQ(PriceBlock(Block(250.25, 1000, OrderTag::Upo), 1, S("Sys"), standing).material, 250.25);
}

TEST(Block, MaterialDollarsAreRounded) {
  StandingFigures standing;
  EXPECT_EQ(PriceBlock(Block(.62, 1, OrderTag::Upo), 10, S("Sys"), standing).material, 6);
  EXPECT_EQ(PriceBlock(Block(.65, 1, OrderTag::Upo), 10, S("Sys"), standing).material, 7);
}

TEST(Block, UnitsPerManhourDivideAndManhoursPerUnitMultiply) {
  StandingFigures standing;
  PriceBlock(Labor(10, 4, LaborTag::Upm), 10, S("Sys"), standing);
  EXPECT_EQ(standing.manhours, 2.5);
  PriceBlock(Labor(10, 4, LaborTag::Mpu), 10, S("Sys"), standing);
  EXPECT_EQ(standing.manhours, 40);
}

TEST(Block, WithoutItsTagTheFigureOfTheBlockBeforeStandsRaisedAndWithWaste) {
  StandingFigures standing;
  PricedBlock first = Block(2, 8, OrderTag::Upo, 10);  // 12.5 + 1.25 = 13.75: 14
  PricedBlock untagged = Block(2, 8, OrderTag::None, 10);
  untagged.laborTag = LaborTag::None;
  untagged.wage = 3;
  PriceBlock(first, 100, S("Sys"), standing);
  EXPECT_EQ(standing.orderQuantity, 14);
  const BlockDollars dollars = PriceBlock(untagged, 5, S("Other"), standing);
  EXPECT_EQ(standing.orderQuantity, 16);  // 14 + 1.4 = 15.4
  EXPECT_EQ(dollars.material, 32);
  EXPECT_EQ(standing.manhours, 100);
  EXPECT_EQ(dollars.labor, 300);
}

TEST(Block, AtTheStartOfAReportTheStandingFiguresAre0) {
  StandingFigures standing;
  PricedBlock untagged = Block(2, 8, OrderTag::None, 10);
  untagged.laborTag = LaborTag::None;
  const BlockDollars dollars = PriceBlock(untagged, 5, S("Sys"), standing);
  EXPECT_EQ(dollars.material, 2);
  EXPECT_EQ(dollars.labor, 0);
}

void ExpectFailure(const std::function<void()>& event, int number, const QStringList& names) {
  try {
    event();
    ADD_FAILURE() << "it did not stop";
  } catch (const RunTimeFailure& failure) {
    EXPECT_EQ(failure.number, number);
    for (const QString& name : names)
      EXPECT_TRUE(failure.text.contains(name)) << failure.text.toStdString();
  }
}

TEST(Block, ARatioOf0StopsWithAMessageThatNamesSystemAndMaterial) {
  StandingFigures standing;
  ExpectFailure([&] { PriceBlock(Block(1, 0, OrderTag::Upo), 5, S("Wall A"), standing); },
                kDivisionByZero, {S("Wall A"), S("Stuff")});
  ExpectFailure([&] { PriceBlock(Labor(1, 0, LaborTag::Upm), 5, S("Wall A"), standing); },
                kDivisionByZero, {S("Wall A"), S("Stuff"), S("manhour")});
  EXPECT_NO_THROW(PriceBlock(Block(1, 0, OrderTag::Opu), 5, S("Wall A"), standing));
  EXPECT_NO_THROW(PriceBlock(Labor(1, 0, LaborTag::Mpu), 5, S("Wall A"), standing));
}

TEST(Block, FiguresThatNoNumberHoldsStopWithTheSystemsName) {
  StandingFigures standing;
  ExpectFailure(
      [&] { PriceBlock(Block(1e300, 1e300, OrderTag::Opu), 1e300, S("Wall A"), standing); },
      kOverflow, {S("Wall A")});
  ExpectFailure([&] { UnitPricedAmount(1e300, 1e300, S("Guard")); }, kOverflow, {S("Guard")});
}

TEST(UnitPriced, AmountIsRoundedAndCarriesNoMarkup) {
  EXPECT_EQ(UnitPricedAmount(38.5, 13, S("Guard")), 501);
  EXPECT_EQ(UnitPricedAmount(31.75, 53, S("Carpet")), 1683);
  EXPECT_EQ(UnitPricedAmount(.5, -3, S("Carpet")), -1);
}

Markups Texts() {
  Markups texts;
  texts.LOH = S(".12");
  texts.LTX = S(".0765");
  texts.LMU = S(".10");
  texts.MOH = S(".08");
  texts.MTX = S(".0725");
  texts.MMU = S(".10");
  texts.BLOH = S(".05");
  texts.BLTX = S("0");
  texts.BLMU = S(".08");
  texts.MIOH = S(".01");
  texts.MITX = S(".03");
  texts.MIMU = S(".02");
  return texts;
}

TEST(Line, MarkupsLieOnTheRawDollarsAndMiscOnBoth) {
  // 100 order units of 2.00 and 100 manhours of 3.00.
  PricedBlock block = Block(2, 1, OrderTag::Upo);
  block.wage = 3;
  StandingFigures standing;
  const LineRollUp line = RollUpLine({block}, 100, S("Sys"), MarkupFactors(Texts()), standing);
  EXPECT_EQ(line.rawLabor, 300);
  EXPECT_EQ(line.rawMaterial, 200);
  // Labor 300 x .3565 = 106.95: 107. Material 200 x .3125 = 62.5. Together 169.5: 170.
  EXPECT_EQ(line.markups, 170);
  EXPECT_EQ(line.total, 670);
  EXPECT_EQ(line.unitPrice, S("6.70"));
  EXPECT_EQ(line.manhours, 100);
}

TEST(Line, ALeastChargeWithCentsIsMarkedUpBeforeItIsRounded) {
  PricedBlock block = Block(10.4, 1000, OrderTag::Upo);
  Markups texts;
  texts.MOH = S("1");
  StandingFigures standing;
  const LineRollUp line = RollUpLine({block, block}, 1, S("Sys"), MarkupFactors(texts), standing);
  EXPECT_EQ(line.rawMaterial, 21);  // 20.8
  EXPECT_EQ(line.markups, 21);
  EXPECT_EQ(line.total, 42);
}

struct MoneyRow {
  const char* text;
  const char* money;
};
class MoneyTable : public ::testing::TestWithParam<MoneyRow> {};

TEST_P(MoneyTable, MakeMoneyOfTheReports) {
  EXPECT_EQ(MakeMoney(QLatin1String(GetParam().text)), QLatin1String(GetParam().money));
}

INSTANTIATE_TEST_SUITE_P(Rollup, MoneyTable,
                         ::testing::Values(MoneyRow{"", "0.00"}, MoneyRow{"none", "0.00"},
                                           MoneyRow{"0", "0.00"}, MoneyRow{".05", ".05"},
                                           MoneyRow{"1.5", "1.50"}, MoneyRow{"12", "12.00"},
                                           MoneyRow{"1.999", "1.99"}, MoneyRow{"-3", "-3.00"},
                                           MoneyRow{".001", ".00"}));

TEST(EstimatedUnitPrice, WholeCentsAfterFiveHundredths) {
  EXPECT_EQ(UnitPriceText(5.5559), S("5.55"));
  EXPECT_EQ(UnitPriceText(.9976), S(".99"));
  EXPECT_EQ(UnitPriceText(.0996), S(".10"));  // 9.96 + .05 is cut to 10
  EXPECT_EQ(UnitPriceText(.05), S(".05"));
  EXPECT_EQ(UnitPriceText(0), S("0.00"));
  EXPECT_EQ(UnitPriceText(.0001), S("0.00"));
  EXPECT_EQ(UnitPriceText(1032), S("1032.00"));
}

TEST(Project, EachMarkupOnceOnTheProjectSums) {
  ProjectRollUp sums;
  sums.rawLabor = 1015;
  sums.rawMaterial = 2000.5;
  sums.rawBottomLine = 333.33;
  Markups texts = Texts();
  texts.LOH = texts.LTX = S(".10");
  const ProjectRollUp p = RollUpProject(sums, 0, MarkupFactors(texts));
  EXPECT_EQ(p.laborOverhead, 102);  // 101.5 rounded
  EXPECT_EQ(p.laborTax, 101);       // 101.5 truncated
  EXPECT_EQ(p.laborMarkup, 102);
  EXPECT_EQ(p.totalLabor, 1320);
  EXPECT_EQ(p.rawMaterial, 2001);
  EXPECT_EQ(p.materialOverhead, 160);  // 160.08
  EXPECT_EQ(p.materialTax, 145);       // 145.0725
  EXPECT_EQ(p.materialMarkup, 200);    // 200.1
  EXPECT_EQ(p.totalMaterial, 2506);
  EXPECT_EQ(p.bottomLineOverhead, 16);  // 16.67
  EXPECT_EQ(p.bottomLineTax, 0);
  EXPECT_EQ(p.bottomLineMarkup, 26);  // 26.67
  EXPECT_DOUBLE_EQ(p.totalBottomLine, 375.33);
  EXPECT_EQ(p.miscOverhead, 33);  // 33.4933
  EXPECT_EQ(p.miscTax, 100);      // 100.4799
  EXPECT_EQ(p.miscMarkup, 70);    // (145 + 3349.33) x .02 = 69.8866
  EXPECT_EQ(p.totalMisc, 103);    // without the misc. tax
  EXPECT_EQ(p.totalBid, 4304);    // 2506 + 1320 + 375.33 + 103 = 4304.33
  EXPECT_EQ(p.grossProfit, 9);    // 328 / 3349.33
  EXPECT_EQ(p.netProfit, 7);      // 328 / 4201.33
}

TEST(Project, TheMiscMarkupLiesOnTheMaterialTaxToo) {
  ProjectRollUp sums;
  sums.rawLabor = 100;
  sums.rawMaterial = 1000;
  Markups texts;
  texts.MTX = S(".5");
  texts.MIMU = S(".1");
  EXPECT_EQ(RollUpProject(sums, 0, MarkupFactors(texts)).miscMarkup, 160);
}

TEST(Project, TheAdjustmentComesAfterTheRounding) {
  ProjectRollUp sums;
  sums.rawLabor = 100;
  EXPECT_EQ(RollUpProject(sums, .25, MarkupFactors()).totalBid, 100.25);
  EXPECT_EQ(RollUpProject(sums, -40, MarkupFactors()).totalBid, 60);
}

TEST(Project, RawCostsOf0StopWithAMessageOfUnitPricedItems) {
  ExpectFailure([] { RollUpProject(ProjectRollUp(), 0, MarkupFactors()); }, kDivisionByZero,
                {S("unit-priced items alone has no breakdown")});
}

TEST(Markups, TextsAreFractionsAndOtherTextIs0) {
  Markups texts = Texts();
  texts.LOH = S("ten");
  texts.MOH = S("10");
  const MarkupFactors factors(texts);
  EXPECT_EQ(factors.LOH, 0);
  EXPECT_EQ(factors.MOH, 10);
  EXPECT_DOUBLE_EQ(factors.BottomLineSum(), .19);
}

}  // namespace
}  // namespace tamo::test
