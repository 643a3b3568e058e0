#include "reports/recap.h"

#include <gtest/gtest.h>

#include "common/failure.h"
#include "reportbench.h"
#include "reports/breakdown.h"
#include "reports/quantities.h"

namespace tamo::test {
namespace {

#define S(text) QStringLiteral(text)

const QString kRule = S("    _________________________________________________________________");

QStringList Recap(BenchProject& project, bool detailed = false) {
  QString adjustment;
  return MinimalRecapSheet(project.Source(), project.MarkupsOfFile(), detailed, adjustment)
      .lines.ToList();
}

// Twelve markups in the order of the file: MOH MTX MMU LOH LTX LMU BLOH BLTX BLMU MIOH MITX MIMU.
void Mark(BenchProject& project, const QStringList& twelve) {
  project.Write(S("Markups.tamo"), twelve);
}

TEST(RecapSheet, NoTakeoffGivesATotalOf0AndNoManhours) {
  BenchProject project;
  EXPECT_EQ(Recap(project),
            (QStringList{S("Recap Sheet"), S(""), kRule, S(""),
                         S("          Total                                                $ 0.00"),
                         S(""), S(""), S("       This project will take 0 manhours to complete"),
                         S("       excluding unit priced items."), S("")}));
}

TEST(RecapSheet, AQuantityOf0PrintsNothingAlsoForAUnitPricedSystem) {
  BenchProject project;
  project.System(S("Guard"), S("EA"), S("38.50"));
  project.System(S("Wall"), S("SF"), S("0.00"), {{S("Stud")}});
  project.Room(S("A"), {RoomLine(S("Guard"), S("0"), S("EA")), RoomLine(S("Wall"), S("0"))});
  const QStringList lines = Recap(project);
  EXPECT_EQ(lines[2], kRule);
}

TEST(RecapSheet, AnAdjustmentThatIsNoNumberCountsAs0) {
  BenchProject project;
  project.Adjust(S("to be agreed"));
  EXPECT_TRUE(Recap(project)[4].startsWith(S("          Total   ")));
}

TEST(RecapSheet, ABottomLineItemOf100With5PerCentAdds105) {
  BenchProject project;
  Mark(project, {S("0"), S("0"), S("0"), S("0"), S("0"), S("0"), S(".05")});
  project.Items({S("Bond                    100.00")});
  EXPECT_TRUE(Recap(project).contains(
      S("          Total                                              $ 105.00")));
}

TEST(RecapSheet, ABottomLineItemWithCentsLeavesATotalThatEndsInCents) {
  BenchProject project;
  Mark(project, {S("0"), S("0"), S("0"), S("0"), S("0"), S("0"), S(".05")});
  project.Items({S("Bond                     33.33")});
  // 33.33 + 1.6665, not rounded, and ".00" behind it as behind any other.
  EXPECT_TRUE(Recap(project).contains(
      S("          Total                                          $ 34.9965.00")));
}

TEST(RecapSheet, ItemsWithoutAdjustmentPrintSubtotalItemsRuleEmptyLineAndTotal) {
  BenchProject project;
  project.Items({S("Bond                   1000.00")});
  Mark(project, {S("0"), S("0"), S("0"), S("0"), S("0"), S("0"), S(".05"), S("0"), S(".04"),
                 S(".01"), S(".02"), S(".005")});
  const QStringList lines = Recap(project).mid(4, 6);
  EXPECT_EQ(
      lines,
      (QStringList{S("          Subtotal                                             $ 0.00"),
                   S("             Bond                   1000.00"),
                   S("                Markup               125.00"), kRule, S(""),
                   S("          Total                                             $ 1125.00")}));
}

TEST(RecapSheet, WithoutItemsAndAdjustmentOnlyTheTotalIsPrinted) {
  BenchProject project;
  const QStringList lines = Recap(project);
  EXPECT_TRUE(lines.filter(S("Subtotal")).isEmpty());
  EXPECT_EQ(lines.filter(S("          Total   ")).size(), 1);
}

TEST(RecapSheet, AnAdjustmentIsShownAsTypedWithItsSign) {
  BenchProject project;
  project.Adjust(S("-12.50"));
  const QStringList lines = Recap(project).mid(4, 9);
  EXPECT_EQ(
      lines,
      (QStringList{
          S("          Subtotal                                             $ 0.00"), S(""),
          S("                Subtotal                                       $ 0.00"), S(""),
          S("                                       Adjustment           -12.50.00"),
          S("                                                             __________"), S(""),
          S("                Total                                      $ -12.5.00"), S("")}));
}

TEST(RecapSheet, ANameOf19CharactersFillsTheUnitPricedColumnAndOneOf20LetsTheLineGrow) {
  BenchProject project;
  project.System(S("Nineteen Char Syste"), S("EA"), S("2.00"));
  project.System(S("Twenty Character Sys"), S("EA"), S("2.00"));
  project.Room(S("A"), {RoomLine(S("Nineteen Char Syste"), S("4"), S("EA")),
                        RoomLine(S("Twenty Character Sys"), S("4"), S("EA"))});
  const QStringList lines = Recap(project);
  EXPECT_EQ(lines[2], S("  Nineteen Char Syste             4 EA           2.00          8.00"));
  EXPECT_EQ(lines[4], S("  Twenty Character Sys             4 EA           2.00          8.00"));
}

TEST(RecapSheet, AQuantityLongerThan14CharactersLetsTheLineGrow) {
  BenchProject project;
  project.System(S("Guard"), S("EA"), S(".01"));
  project.Room(S("A"), {RoomLine(S("Guard"), S("99999999999999"), S("EA")),
                        RoomLine(S("Guard"), S("1"), S("EA"))});
  EXPECT_EQ(Recap(project)[2],
            S("  Guard              100000000000000 EA            .011000000000000.00"));
}

TEST(RecapSheet, AQuantityOfAHalfShowsSoAndDividesTheTotal) {
  BenchProject project;
  project.System(S("Sand"), S("CY"), S("0.00"), {{S("Ton"), S("TON"), S("10"), S("1")}});
  project.Room(S("A"), {RoomLine(S("Sand"), S(".5"), S("CY"))});
  // One order unit of 10.00, at half a unit: 20.00.
  EXPECT_EQ(Recap(project)[2],
            S("  Sand                             .5 CY   EUP    20.00         10.00"));
}

TEST(RecapSheet, TheBlockOfAPricedRow) {
  BenchProject project;
  Mark(project, {S(".10"), S("0"), S("0"), S(".20")});
  project.System(
      S("Wall"), S("SF"), S(""),
      {{S("Stud"), S("LF"), S("2"), S("1"), S("upo"), S("1"), S("upm"), S("0"), S("3")}});
  project.Room(S("A"), {RoomLine(S("Wall"), S("100"))});
  EXPECT_EQ(Recap(project).mid(2, 5),
            (QStringList{S("  Wall                            100 SF   EUP     5.80        580.00"),
                         S("     Labor                                       300.00"),
                         S("     Material                                    200.00"),
                         S("     Markups                                      80.00"), S("")}));
  const QStringList detailed = Recap(project, true);
  EXPECT_EQ(detailed[3], S("          -Raw Labor                 300.00"));
  EXPECT_EQ(detailed[4], S("          Labor Overhead              60.00"));
  EXPECT_EQ(detailed[10], S("          -Raw Material              200.00"));
  EXPECT_EQ(detailed[11], S("          Material Overhead           20.00"));
  EXPECT_EQ(detailed[17], S(""));
  EXPECT_TRUE(detailed.filter(S("Markups  ")).isEmpty());  // its place is the empty line
}

TEST(RecapSheet, NegativeDollarsStandWhereTheBlankOfTheSignStood) {
  BenchProject project;
  project.System(
      S("Credit"), S("SF"), S(""),
      {{S("Back"), S("EA"), S("-1"), S("1"), S("opu"), S("0"), S("mpu"), S("0"), S("0")}});
  project.Room(S("A"), {RoomLine(S("Credit"), S("50"))});
  EXPECT_EQ(Recap(project)[4], S("     Material  ") + QString(35, u' ') + S("-1.00"));
}

TEST(RecapSheet, ASystemWithoutAFileIsPricedWithTheUnitPriceBeforeIt) {
  BenchProject project;
  project.System(S("Guard"), S("EA"), S("10.00"));
  project.Room(S("A"), {RoomLine(S("Gone"), S("4"), S("EA")), RoomLine(S("Guard"), S("1"), S("EA")),
                        RoomLine(S("Gone Too"), S("2"), S("LF"))});
  QString adjustment;
  const Report report = MinimalRecapSheet(project.Source(), {}, false, adjustment);
  EXPECT_EQ(report.lines[2],
            S("  Gone                              4 EA   EUP     0.00          0.00"));
  EXPECT_EQ(report.lines[9],
            S("  Gone Too                        2 LF          10.00         20.00"));
  ASSERT_EQ(report.notes.size(), 2u);
  EXPECT_EQ(report.notes[0].text,
            S("The system \"Gone\" has no file in this project: it is priced at nothing."));
  EXPECT_EQ(report.notes[0].rows, std::vector<int>{2});
  EXPECT_TRUE(report.notes[1].text.contains(S("10.00, the unit price of the system before it")));
  EXPECT_EQ(report.notes[1].rows, std::vector<int>{9});
}

TEST(RecapSheet, AMaterialThatReads0IsNoted) {
  BenchProject project;
  project.System(
      S("Wall"), S("SF"), S(""),
      {{S("Stud"), S("LF"), S("0"), S("1"), S("upo"), S("1"), S("upm"), S("0"), S("30")}});
  project.Room(S("A"), {RoomLine(S("Wall"), S("100"))});
  QString adjustment;
  const Report report = MinimalRecapSheet(project.Source(), {}, false, adjustment);
  ASSERT_EQ(report.notes.size(), 1u);
  EXPECT_EQ(report.notes[0].text,
            S("The material \"Stud\" of the system \"Wall\" reads 0 for: price."));
}

TEST(RecapSheet, ARatioOf0StopsIt) {
  BenchProject project;
  project.System(S("Wall"), S("SF"), S(""), {{S("Stud"), S("LF"), S("1"), S("0")}});
  project.Room(S("A"), {RoomLine(S("Wall"), S("100"))});
  EXPECT_THROW(Recap(project), RunTimeFailure);
}

TEST(RecapSheet, TheTotalDiffersFromTheBreakdownByRoundingAndUnitPricedItems) {
  BenchProject project(DataPathOf(S("riverside/home/Tamo/Projects/07-2611004/")));
  QString adjustment;
  const QStringList recap = Recap(project);
  EXPECT_TRUE(recap.filter(S("                Total")).first().endsWith(S("$ 95081.2628.00")));
  const BreakFigures figures = MakeBreak(project.Source(), project.MarkupsOfFile(), adjustment);
  EXPECT_EQ(figures.roll.totalBid, 92747);
  EXPECT_EQ(figures.unitPriced, 1683 + 501 + 191);
}

TEST(DetailedRecapSheet, OneGroupOfLinesForEachMaterial) {
  BenchProject project;
  Mark(project, {S(".10"), S("0"), S("0"), S(".20"), S(".05")});
  project.System(
      S("Wall"), S("SF"), S(""),
      {{S("Stud"), S("LF"), S("2"), S("8"), S("upo"), S("4"), S("upm"), S("0"), S("3")}});
  project.Room(S("A"), {RoomLine(S("Wall"), S("100"))});
  // 12.5 order units are raised to 13: 26 dollars. 25 manhours: 75 dollars.
  // Markups 2.6 + 15 + 3.75 = 21.35.
  EXPECT_EQ(DetailedRecapSheet(project.Source(), project.MarkupsOfFile()).lines,
            (QStringList{S("Recap Sheet"), S(""), S("  Wall  100 EUP SF"), S("     Stud  @ 2.00"),
                         S("     Labor    25 hrs. @ 3.00"), S("     Material 13 LF @ 2.00"),
                         S("Labor    75.00"), S("Material 26.00"), S("Markups  21.00"), S(""),
                         QString(64, QLatin1Char('_')), S("     Total  $122.00"),
                         S("          Labor  75.00"), S("          Material  26.00"),
                         S("     Cost  101.00"), S("          Labor Tax  4.00")}));
}

TEST(DetailedRecapSheet, NothingIsCutToThreeDecimalsAndThereIsNoLeastCharge) {
  BenchProject project;
  project.System(
      S("Wall"), S("SF"), S(""),
      {{S("Drum"), S("DR"), S("250"), S("1000"), S("upo"), S("1000"), S("upm"), S("0"), S("40")}});
  project.Room(S("A"), {RoomLine(S("Wall"), S("1"))});
  const QStringList lines = DetailedRecapSheet(project.Source(), {}).lines.ToList();
  EXPECT_TRUE(lines.contains(S("     Labor    .001 hrs. @ 40.00")));
  EXPECT_TRUE(lines.contains(S("     Material 0 DR @ 250.00")));
  EXPECT_TRUE(lines.contains(S("     Total  $0.00")));
}

TEST(Quantities, EverySystemAlsoOneOf0AsMerged) {
  BenchProject project;
  project.Room(S("A"), {RoomLine(S("Wall"), S("12.345")), RoomLine(S("Door"), S("0"), S("EA"))});
  EXPECT_EQ(Quantities(project.Source()).lines,
            (QStringList{S("Quantities"), S(""), S("Wall                      12.345 SF"),
                         S("Door                           0 EA")}));
}

TEST(Quantities, AWideQuantityLetsTheLineGrow) {
  BenchProject project;
  project.Room(S("A"), {RoomLine(S("Twenty Character Sys"), S("12345678901234"), S("SF"))});
  EXPECT_EQ(Quantities(project.Source()).lines[2], S("Twenty Character Sys12345678901234 SF"));
}

}  // namespace
}  // namespace tamo::test
