#include "common/numbers.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <random>

#include "common/failure.h"

namespace tamo {
namespace {

struct ValueRow {
  const char* text;
  double value;
};

class ValueTable : public ::testing::TestWithParam<ValueRow> {};

TEST_P(ValueTable, ReadsTheLeadingNumber) {
  EXPECT_DOUBLE_EQ(Value(QString::fromUtf8(GetParam().text)), GetParam().value) << GetParam().text;
}

INSTANTIATE_TEST_SUITE_P(
    Numbers, ValueTable,
    ::testing::Values(ValueRow{"", 0}, ValueRow{"   ", 0}, ValueRow{"12", 12},
                      ValueRow{"  12.5 SF", 12.5}, ValueRow{"-3", -3}, ValueRow{"+3", 3},
                      ValueRow{".5", .5}, ValueRow{"-.5", -.5}, ValueRow{"5.", 5}, ValueRow{".", 0},
                      ValueRow{"-", 0}, ValueRow{"1e3", 1}, ValueRow{"1,500.0", 1},
                      ValueRow{"0x10", 0}, ValueRow{"1.2.3", 1.2}, ValueRow{"--1", 0},
                      ValueRow{"abc", 0}, ValueRow{"\t7", 0}, ValueRow{"7\t", 7},
                      ValueRow{"1 2", 1}, ValueRow{"- 1", 0}, ValueRow{"$5", 0},
                      ValueRow{"0.1", 0.1}, ValueRow{"00012", 12}, ValueRow{"inf", 0},
                      ValueRow{"nan", 0}));

TEST(Value, OtherDigitsThanOursAreNoDigits) {
  EXPECT_EQ(Value(QString::fromUtf8("\u0663")), 0);
}

TEST(Value, ANumberNoDoubleHoldsIsAFailure) {
  EXPECT_THROW(Value(QString(400, QLatin1Char('9'))), RunTimeFailure);
  EXPECT_EQ(Value(QStringLiteral("0.") + QString(400, QLatin1Char('0')) + QStringLiteral("1")), 0);
}

TEST(GroupedValue, SkipsACommaBetweenADigitAndThreeDigits) {
  EXPECT_EQ(GroupedValue(u"1,500.0"), 1500);
  EXPECT_EQ(GroupedValue(u"1,234,567.5"), 1234567.5);
  EXPECT_EQ(GroupedValue(u"1,50"), 1);
  EXPECT_EQ(GroupedValue(u"1,5000"), 1);
  EXPECT_EQ(GroupedValue(u",500"), 0);
  EXPECT_EQ(GroupedValue(u"-2,000"), -2000);
  EXPECT_EQ(GroupedValue(u"1.5,000"), 1.5);
}

TEST(NumberText, ShortestPlainDecimal) {
  EXPECT_EQ(NumberText(0), QStringLiteral("0"));
  EXPECT_EQ(NumberText(-0.0), QStringLiteral("0"));
  EXPECT_EQ(NumberText(12.5), QStringLiteral("12.5"));
  EXPECT_EQ(NumberText(.5), QStringLiteral(".5"));
  EXPECT_EQ(NumberText(-.5), QStringLiteral("-.5"));
  EXPECT_EQ(NumberText(100), QStringLiteral("100"));
  EXPECT_EQ(NumberText(0.1 + 0.2), QStringLiteral(".3"));
  EXPECT_EQ(NumberText(1e15), QStringLiteral("1000000000000000"));
  EXPECT_EQ(NumberText(123456789012345678.0), QStringLiteral("123456789012346000"));
  EXPECT_EQ(NumberText(1e-7), QStringLiteral(".0000001"));
  EXPECT_EQ(NumberText(1.0 / 3), QStringLiteral(".333333333333333"));
  EXPECT_EQ(NumberText(2.0 / 3), QStringLiteral(".666666666666667"));
  EXPECT_EQ(NumberText(96331.2628), QStringLiteral("96331.2628"));
}

TEST(NumberText, InfinityAndNotANumberAreNeverPrinted) {
  EXPECT_THROW(NumberText(std::numeric_limits<double>::infinity()), RunTimeFailure);
  EXPECT_THROW(NumberText(std::numeric_limits<double>::quiet_NaN()), RunTimeFailure);
}

TEST(SignedNumberText, OneBlankInThePlaceOfThePlus) {
  EXPECT_EQ(SignedNumberText(5), QStringLiteral(" 5"));
  EXPECT_EQ(SignedNumberText(0), QStringLiteral(" 0"));
  EXPECT_EQ(SignedNumberText(-5), QStringLiteral("-5"));
}

// Numbers of few decimals are printed and read by a short way; it must agree with the long one.
TEST(NumberText, TheShortWayIsTheLongWay) {
  for (int places = 0; places <= 6; ++places) {
    const double tens = std::pow(10, places);
    for (int i = -30000; i <= 30000; i += 7) {
      const double x = i / tens;
      const QString text = NumberText(x);
      QString plain = QString::number(x, 'f', 12);
      while (plain.endsWith(QLatin1Char('0'))) plain.chop(1);
      if (plain.endsWith(QLatin1Char('.'))) plain.chop(1);
      if (plain.startsWith(QLatin1String("0."))) plain.remove(0, 1);
      if (plain.startsWith(QLatin1String("-0."))) plain.remove(1, 1);
      ASSERT_EQ(text, plain);
      ASSERT_EQ(Value(text), x);
      ASSERT_EQ(Value(text), text.toDouble());
    }
  }
  EXPECT_EQ(NumberText(-.05), QStringLiteral("-.05"));
  EXPECT_EQ(NumberText(999999999999999.0), QStringLiteral("999999999999999"));
  EXPECT_EQ(NumberText(99999999999.9999), QStringLiteral("99999999999.9999"));
  EXPECT_EQ(Value(QStringLiteral("999999999999999")), 999999999999999.0);
  EXPECT_EQ(Value(QStringLiteral("9999999999999999")), 9999999999999999.0);
  EXPECT_EQ(Value(QStringLiteral("0000000000000000001.5")), 1.5);
}

TEST(NumberText, RoundingTo15DigitsIsThatOfTheLongWay) {
  std::mt19937_64 random(20211214);
  std::uniform_real_distribution<double> size(-8, 16);
  for (int i = 0; i < 200000; ++i) {
    double x = std::pow(10, size(random)) * (i % 2 == 0 ? 1 : -1);
    if (i % 5 == 0) x = std::nearbyint(x) + 0.0005 * (i % 7);
    char scientific[40];
    std::snprintf(scientific, sizeof scientific, "%.14e", x);
    ASSERT_EQ(CutTo15Digits(x), std::strtod(scientific, nullptr)) << scientific;
    ASSERT_EQ(NumberText(x).toDouble(), std::strtod(scientific, nullptr)) << scientific;
  }
}

// Value(NumberText(x)) is x cut to 15 digits, and a second trip changes nothing.
TEST(NumberText, RoundTripCutsTo15Digits) {
  std::mt19937_64 random(4711);
  std::uniform_real_distribution<double> mantissa(-1, 1);
  std::uniform_int_distribution<int> exponent(-30, 30);
  for (int i = 0; i < 20000; ++i) {
    const double x = mantissa(random) * std::pow(10.0, exponent(random));
    const double once = CutTo15Digits(x);
    ASSERT_NEAR(once / x, 1, 1e-14);
    ASSERT_EQ(NumberText(once), NumberText(x));
    ASSERT_EQ(CutTo15Digits(once), once);
    const QString text = NumberText(x);
    ASSERT_FALSE(text.contains(QLatin1Char('e')));
    ASSERT_FALSE(text.startsWith(QLatin1String("0.")) || text.startsWith(QLatin1String("-0.")));
    ASSERT_FALSE(text.contains(QLatin1Char('.')) && text.endsWith(QLatin1Char('0')));
  }
}

TEST(Roundings, AreFloorsAlsoBelowZero) {
  EXPECT_EQ(Rounded(2.5), 3);
  EXPECT_EQ(Rounded(-2.5), -2);
  EXPECT_EQ(Raised(12.1), 13);
  EXPECT_EQ(Raised(12.09), 12);
  EXPECT_EQ(Raised(-1.5), -1);
  EXPECT_EQ(Truncated(-0.5), -1);
}

TEST(Divided, ByZeroSaysWhere) {
  EXPECT_EQ(Divided(10, 4, {}), 2.5);
  try {
    Divided(1, 0, QStringLiteral("Drywall in Partition has a ratio of 0."));
    FAIL();
  } catch (const RunTimeFailure& failure) {
    EXPECT_EQ(failure.number, kDivisionByZero);
    EXPECT_TRUE(failure.text.contains(QStringLiteral("Drywall")));
  }
}

}  // namespace
}  // namespace tamo
