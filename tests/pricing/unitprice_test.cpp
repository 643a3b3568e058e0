#include "pricing/unitprice.h"

#include <gtest/gtest.h>

#include "common/failure.h"
#include "pricing/palette.h"
#include "pricing/pricingroom.h"

namespace tamo {
namespace {

using test::Block;

QString Estimated(const QStringList& system, const Markups& markups = {}) {
  return EstimateUnitPrice(system, markups).text;
}

QStringList Plain(const QString& waste = "0") {
  return Block("Board", "SHT", "10.00", "2", "upo", "4", "upm", waste, "20.00");
}

TEST(EstimateUnitPrice, OneMaterialWithoutMarkups) {
  EXPECT_EQ(Estimated(Plain()), "10.001");
}

TEST(EstimateUnitPrice, WasteLoadsTheMaterialOnly) {
  EXPECT_EQ(Estimated(Plain("10")), "10.50105");  // 5.50055 + 5.0005
}

TEST(EstimateUnitPrice, MarkupsAreAddedOnTheSameBaseNotCompounded) {
  Markups markups;
  markups.MOH = ".1";
  EXPECT_EQ(Estimated(Plain("10"), markups), "11.0011");  // .50005 more
}

TEST(EstimateUnitPrice, MiscMarkupsLoadLaborAsMaterial) {
  Markups markups;
  markups.MIOH = ".1";
  EXPECT_EQ(Estimated(Plain(), markups), "11.0011");
  markups.MITX = ".1";
  markups.MIMU = ".1";
  EXPECT_EQ(Estimated(Plain(), markups), "13.0013");
}

TEST(EstimateUnitPrice, LaborMarkupsLoadLaborOnly) {
  Markups markups;
  markups.LOH = markups.LTX = markups.LMU = ".1";
  EXPECT_EQ(Estimated(Plain(), markups), "11.50115");
}

TEST(EstimateUnitPrice, BottomLineMarkupsTakeNoPart) {
  Markups markups;
  markups.BLOH = markups.BLTX = markups.BLMU = "5";
  EXPECT_EQ(Estimated(Plain(), markups), "10.001");
}

TEST(EstimateUnitPrice, TenForTenPercentIsAFactorOfTen) {
  Markups markups;
  markups.MOH = "10";
  EXPECT_EQ(Estimated(Plain(), markups), "60.006");
}

TEST(EstimateUnitPrice, TheOtherDirectionsMultiply) {
  EXPECT_EQ(Estimated(Block("B", "SHT", "10", "2", "opu", "4", "mpu", "0", "20")), "100.001");
}

TEST(EstimateUnitPrice, NoBlockIsZero) {
  EXPECT_EQ(Estimated({}), "0");
}

TEST(EstimateUnitPrice, ABlockWithoutTagsAddsTheRunningValueAgain) {
  // 5.0005 + 5.0005, then the running 5.0005 adjusted twice over: 5.001 + 5.0015.
  EXPECT_EQ(Estimated(Plain() + QStringList(12, QString())), "20.0035");
}

TEST(EstimateUnitPrice, AMaterialWithoutALaborTagTakesTheMaterialTotalAsLabor) {
  EXPECT_EQ(Estimated(Block("B", "SHT", "10", "2", "upo", "4", "", "0", "20")), "10.0015");
}

TEST(EstimateUnitPrice, EveryStepIsCutToFifteenDigits) {
  // 1 / 3 is .333333333333333 before the half thousandth is added.
  EXPECT_EQ(Estimated(Block("B", "SHT", "1", "3", "upo", "1", "upm", "0", "0")),
            ".334333333333333");
}

TEST(EstimateUnitPrice, AZeroUpoStopsTheSumBeforeItsBlock) {
  const QStringList zero = Block("Bad", "SHT", "10", "0", "upo", "4", "upm", "0", "20");
  const EstimatedPrice price = EstimateUnitPrice(Plain() + zero + Plain(), {});
  EXPECT_EQ(price.stoppedAt, 1);
  EXPECT_FALSE(price.labor);
  EXPECT_EQ(price.text, "10.001");
}

TEST(EstimateUnitPrice, AZeroManhourNumberStopsItToo) {
  const EstimatedPrice price =
      EstimateUnitPrice(Block("Bad", "SHT", "10", "2", "upo", "x", "upm", "0", "20"), {});
  EXPECT_EQ(price.stoppedAt, 0);
  EXPECT_TRUE(price.labor);
  EXPECT_EQ(price.text, "0");
}

TEST(EstimateUnitPrice, AZeroThatIsMultipliedIsNoFailure) {
  EXPECT_EQ(Estimated(Block("B", "SHT", "10", "0", "opu", "0", "mpu", "0", "20")), ".001");
}

TEST(EstimateUnitPrice, FiguresBeyondEveryNumberAreAFailureNotAnInfinity) {
  const QString huge(300, '9');
  EXPECT_THROW(Estimated(Block("B", "SHT", huge, huge, "opu", "1", "upm", "0", "1")),
               RunTimeFailure);
}

TEST(PriceMoney, Table) {
  const std::pair<const char*, const char*> cases[] = {
      {"1.5", "1.50"},      {"12", "12.00"},
      {"1.999", "1.99"},    {"0.05", ".05"},
      {"-0.05", ".-5"},     {"", "0.00"},
      {"abc", "0.00"},      {"-", "0.00"},
      {"0", "0.00"},        {".5", ".50"},
      {"  7", "7.00"},      {"1,500", "1.00"},
      {"-12.34", "-12.34"}, {"1234567", "1234567.00"},
      {".001", ".00"}};
  for (const auto& [text, money] : cases) EXPECT_EQ(PriceFormat::MakeMoney(text), money) << text;
}

TEST(PriceMoney, AValueBeyondEveryNumberIsAFailure) {
  EXPECT_THROW(PriceFormat::MakeMoney(QString(400, '9')), RunTimeFailure);
}

TEST(ActualProfit, JoinsTheTextsAndDividesByTheMarkup) {
  Markups markups;
  markups.MOH = "1";
  markups.MTX = "2";
  markups.MMU = "3";
  EXPECT_EQ(ActualProfit(markups), 41);  // 123 / 3
}

TEST(ActualProfit, AMarkupOfZeroIsAFailure) {
  EXPECT_THROW(ActualProfit({}), RunTimeFailure);
}

TEST(Palette, ThreeSwatchesDifferFromTheirCodes) {
  for (const PaletteRow& row : kPalette) {
    const QString name = row.name;
    const bool differs = name == "iViolet" || name == "iDkGreen" || name == "iNavy";
    EXPECT_EQ(QString(row.code) != QString(row.painted), differs) << row.name;
  }
}

TEST(ShownColour, Table) {
  EXPECT_EQ(ShownColour(""), "");
  EXPECT_EQ(ShownColour("NoColor"), "");
  EXPECT_EQ(ShownColour("255155000"), "255155000");
  EXPECT_EQ(ShownColour("999000-12"), "255000000");
  EXPECT_EQ(ShownColour("15790320"), "157255255");
  EXPECT_EQ(ShownColour("7"), "007000007");
  EXPECT_EQ(ShownColour("garbage!!"), "000000000");
}

}  // namespace
}  // namespace tamo
