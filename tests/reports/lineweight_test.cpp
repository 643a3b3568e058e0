#include "reports/lineweight.h"

#include <gtest/gtest.h>

namespace tamo {
namespace {

bool Heavy(const char* title, const char* line) {
  return IsHeavyLine(QString::fromLatin1(title), QString::fromLatin1(line));
}

TEST(LineWeight, TheTitleOfEveryReport) {
  for (const char* title : {"Recap Sheet", "Quantities", "Bill Of Materials", "BreakDown",
                            "  Project Information", "Project Manager"})
    EXPECT_TRUE(Heavy(title, title)) << title;
  EXPECT_FALSE(Heavy("Quantities", ""));
  EXPECT_FALSE(Heavy("Quantities", "GWB Partition A             9846 SF"));
}

TEST(LineWeight, SystemsAndTotalsOfTheRecap) {
  const auto recap = [](const char* line) { return Heavy("Recap Sheet", line); };
  EXPECT_TRUE(recap("  GWB Partition A                9846 SF   EUP     5.55      54703.00"));
  EXPECT_FALSE(recap("     Labor                                     27240.00"));
  EXPECT_TRUE(recap("                Subtotal                              $ 96331.2628.00"));
  EXPECT_TRUE(recap("                Total                                 $ 95081.2628.00"));
  EXPECT_FALSE(recap("    _________________________________________________________________"));
  EXPECT_FALSE(recap("       This project will take 850 manhours to complete"));
}

TEST(LineWeight, SectionsAndTotalsOfTheBreakdown) {
  const auto breakdown = [](const char* line) { return Heavy("BreakDown", line); };
  EXPECT_TRUE(breakdown("Total Bid Price:                                     $ 92747.00"));
  EXPECT_TRUE(breakdown("Labor"));
  EXPECT_TRUE(breakdown("    Total Labor:                                       50780.00"));
  EXPECT_FALSE(breakdown("        Raw Labor:                                39167.00"));
  EXPECT_TRUE(breakdown("    Gross Profit:          9 %"));
}

TEST(LineWeight, RoomsOfTheCopies) {
  const auto copy = [](const char* line) { return Heavy("Project Manager", line); };
  EXPECT_TRUE(copy("Field Copy"));
  EXPECT_TRUE(copy("Lobby"));
  EXPECT_FALSE(copy("   GWB Partition A      WALLS                 612 SF"));
  EXPECT_FALSE(copy("___  Metal Stud 358                  .00 LF(s)   "));
}

}  // namespace
}  // namespace tamo
