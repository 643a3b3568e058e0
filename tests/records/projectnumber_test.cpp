#include "records/projectnumber.h"

#include <gtest/gtest.h>

namespace tamo {
namespace {

const QDate kDecember(2021, 12, 14);

struct Row {
  const char* line;
  QDate today;
  const char* number;
  bool newMonth;
};

class NumberTable : public ::testing::TestWithParam<Row> {};

TEST_P(NumberTable, AfterTheLastNumber) {
  const NextNumber next = NumberAfter(QString::fromUtf8(GetParam().line), GetParam().today);
  EXPECT_EQ(next.number, QString::fromUtf8(GetParam().number)) << GetParam().line;
  EXPECT_EQ(next.newMonth, GetParam().newMonth) << GetParam().line;
}

INSTANTIATE_TEST_SUITE_P(
    ProjectNumbers, NumberTable,
    ::testing::Values(
        Row{"2112000", kDecember, "2112001", false},     // the seed of this month
        Row{"00-2112002", kDecember, "2112003", false},  // the id of the last project
        Row{"00-2112002", QDate(2022, 1, 3), "2201001", true},
        Row{"00-2112002", QDate(2021, 11, 3), "2112003", false},  // a clock moved back
        Row{"00-2112099", kDecember, "2112100", false},
        Row{"00-2112999", kDecember, "21121000", false},  // four digits
        Row{"00-21121000", kDecember, "2112001", true},   // a digit of the month is lost
        Row{"", kDecember, "2112001", true},              // an empty file
        Row{"abc", kDecember, "abc001", false}));         // letters stand after digits

TEST(NumberInId, ReadsWhatStandsBehindTheEstimator) {
  EXPECT_EQ(DigitsOf(NumberInId("00-2112002")), "2112002");
  EXPECT_EQ(DigitsOf(NumberInId("2112000")), "2112000");
  EXPECT_EQ(DigitsOf(NumberInId("07-21121000")), "21121000");
  EXPECT_TRUE(NumberInId("00-2112999") < NumberInId("07-21121000"));
  EXPECT_TRUE(NumberInId("07-2112999") < NumberInId("00-2201001"));
  for (const char* other : {"", "Photos", "07-wild", "07-2113001", "07-211200", "07-2112x01"}) {
    EXPECT_TRUE(NumberInId(other).month.isEmpty()) << other;
    EXPECT_TRUE(NumberInId(other) < NumberInId("2101000")) << other;
  }
}

TEST(SeedNumber, YearMonthAndNone) {
  EXPECT_EQ(SeedNumber(kDecember), QStringLiteral("2112000"));
  EXPECT_EQ(SeedNumber(QDate(2026, 3, 1)), QStringLiteral("2603000"));
}

}  // namespace
}  // namespace tamo
