#include "reports/detailrow.h"

#include <gtest/gtest.h>

#include <random>

#include "common/columns.h"
#include "common/numbers.h"
#include "reports/rollup.h"

using namespace tamo;

// The detail lines of the copies, filled in quickly, are those that plain putting together gives.

namespace {

QString S(const char* text) {
  return QString::fromUtf8(text);
}

QString DollarsAtEnd(double dollars, qsizetype width) {
  return GrownLeft(NumberText(dollars) + S(".00"), width);
}

QString MaterialLine(const PricedBlock& block, double hundredths, double dollars, bool office) {
  return (office ? S("     ") : S("___  ")) + GrownRight(block.material, 21) +
         GrownLeft(WithPoint(hundredths), 14) + S(" ") + block.orderUnit + S("(s)") +
         GrownBlanks(5 - block.orderUnit.size()) + (office ? DollarsAtEnd(dollars, 13) : S(""));
}

QString LaborLine(double hundredths, double dollars, bool office) {
  return (office ? S("     ") : S("___  ")) + S("Labor") + GrownLeft(WithPoint(hundredths), 30) +
         S(" Manhours") + (office ? DollarsAtEnd(dollars, 14) : S(""));
}

void ExpectLine(const DetailRow& row, const QString& line, double hundredths, double dollars,
                bool office) {
  TextRows rows;
  const DetailRow::Worth worth = row.AddTo(rows, hundredths, dollars);
  ASSERT_EQ(rows.ToList(), QStringList{line});
  if (!office) return;
  EXPECT_EQ(worth.dollars, Value(line.right(14))) << line.toStdString();
  EXPECT_EQ(worth.labor, line.left(20).trimmed() == S("Labor")) << line.toStdString();
}

}  // namespace

TEST(DetailRow, EqualsThePlainLineForEveryNameUnitAndFigure) {
  std::mt19937 dice(7);
  const double figures[] = {0,      1,      9,    10,   99,   -5,   -10,           -1250,
                            12345,  999999, 1e9,  1e10, 1e11, 1e12, 99999999999.0, 1e15,
                            1.5e16, -1e14,  1e22, 3e30};
  const auto figure = [&] { return figures[dice() % std::size(figures)]; };
  for (const char* name : {"Slab", "", "Labor", "Stud 3 5/8 by 8 feet", "Twenty-one characters",
                           "A name far wider than its column", "Plâtre", "墙纸"}) {
    for (const char* unit : {"EA", "", "SHEET", "BUNDLE", "CARTON OF 12", "Stück", "箱"}) {
      PricedBlock block;
      block.material = S(name);
      block.orderUnit = S(unit);
      for (const bool office : {true, false}) {
        const DetailRow material = DetailRow::Material(block, office);
        const DetailRow labor = DetailRow::Labor(office);
        for (int i = 0; i < 60; ++i) {
          const double hundredths = figure();
          const double dollars = figure();
          ExpectLine(material, MaterialLine(block, hundredths, dollars, office), hundredths,
                     dollars, office);
          ExpectLine(labor, LaborLine(hundredths, dollars, office), hundredths, dollars, office);
        }
      }
    }
  }
}

TEST(WithPoint, ReadsAsItIsShown) {
  for (const double hundredths :
       {0.0, 5.0, -5.0, -9.0, -10.0, 123456.0, 1e15, 1.23456789012345e17}) {
    EXPECT_EQ(ReadWithPoint(hundredths), Value(WithPoint(hundredths))) << hundredths;
  }
  EXPECT_EQ(ReadWithPoint(-5), 0);
}

TEST(MoneyText, IsThatOfTheReports) {
  for (const double dollars : {0.0, -0.0, 1.0, 18.0, -7.0, .5, 12.345, 1e12, 3e13, 1e16}) {
    EXPECT_EQ(MoneyText(dollars), MakeMoney(NumberText(dollars))) << dollars;
  }
}
