// The small rules of the takeoff that need no form.

#include <gtest/gtest.h>

#include "takeoff/bottomlinemoney.h"
#include "takeoff/nextname.h"
#include "takeoff/unitcodes.h"

namespace tamo {
namespace {

TEST(BottomLineMoney, Table) {
  const struct {
    const char* from;
    const char* to;
  } table[] = {{"12.5", "12.50"},
               {"0.25", ".25"},
               {"-3", "-3.00"},
               {"", "0.00"},
               {"0", "0.00"},
               {"abc", "0.00"},
               {"1.999", "1.99"},
               {"0.05", "0.05"},
               {"-0.05", "-0.05"},
               {"0.001", "0.00"},
               {"-.25", "-.25"},
               {"1,500", "1.00"},
               {"100", "100.00"},
               {".1", ".10"},
               {"-12.35", "-12.35"},
               {"0.09", "0.09"},
               {"99999999999", "99999999999.00"},
               {"-0.001", "-0.01"}};
  for (const auto& row : table)
    EXPECT_EQ(BottomLineMoney(QString::fromLatin1(row.from)), QString::fromLatin1(row.to))
        << row.from;
}

TEST(NextName, Table) {
  const struct {
    const char* name;
    const char* next;
  } table[] = {{"101", "102"},
               {"109", "110"},
               {"199", "100"},
               {"A99", "A00"},
               {"A9", "A1"},
               {"Lobby", "Lobb1"},
               {"Room 9", "Room10"},
               {"7", "8"},
               {"99", "00"},
               {"9", "10"},
               {"B", "1"},
               {"", "1"},
               {"Room 10", "Room 11"},
               {"R-1", "R-0"},
               {"Suite 09", "Suite 10"}};
  for (const auto& row : table)
    EXPECT_EQ(NextName(QString::fromLatin1(row.name)), QString::fromLatin1(row.next)) << row.name;
}

TEST(UnitCodes, TheThreeSets) {
  for (const char* unit : {"LF", "lf", "LM", "LY", "Ly"}) {
    EXPECT_TRUE(IsLinearOrCount(QLatin1String(unit))) << unit;
    EXPECT_FALSE(IsCount(QLatin1String(unit))) << unit;
  }
  for (const char* unit : {"EA", "CT", "EACH", "COUNT", "each"}) {
    EXPECT_TRUE(IsLinearOrCount(QLatin1String(unit))) << unit;
    EXPECT_TRUE(IsCount(QLatin1String(unit))) << unit;
  }
  for (const char* unit : {"SF", "SY", "", "LS", "LF ", "E"})
    EXPECT_FALSE(IsLinearOrCount(QLatin1String(unit))) << unit;
}

TEST(UnitCodes, WordsThatAskForAWidth) {
  for (const char* area : {"CLNG", "ceiling", "Flr", "FLOOR"})
    EXPECT_TRUE(AsksForWidth(QLatin1String(area)));
  for (const char* area : {"", "WALLS", "CEILINGS", "FL"})
    EXPECT_FALSE(AsksForWidth(QLatin1String(area)));
}

TEST(UnitCodes, FindLineTakesTheFirstSlotOrBeginning) {
  const QStringList lines = {QStringLiteral("Base"), QStringLiteral("Paint Walls"),
                             QStringLiteral("Paint")};
  EXPECT_EQ(FindLine(lines, QStringLiteral("Paint")), 1);
  EXPECT_EQ(FindLine(lines, QStringLiteral("paint")), 3);
  EXPECT_EQ(FindLine({QStringLiteral("Base"), QString(), QStringLiteral("Paint")},
                     QStringLiteral("Paint")),
            1);
  EXPECT_EQ(FindLine({}, QStringLiteral("Paint")), 0);
}

}  // namespace
}  // namespace tamo
