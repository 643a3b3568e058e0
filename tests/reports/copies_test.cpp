#include "reports/copies.h"

#include <gtest/gtest.h>

#include "common/failure.h"
#include "common/numbers.h"
#include "reportbench.h"
#include "reports/breakdown.h"
#include "reports/rollup.h"

namespace tamo::test {
namespace {

#define S(text) QStringLiteral(text)

const Material kSlab{S("Slab"), S("EA"),  S("10"), S("1"), S("opu"),
                     S("2"),    S("mpu"), S("0"),  S("40")};

TEST(Copies, AUnitPricedSystemPrintsItsHeadAndNoDetailLines) {
  BenchProject project;
  project.System(S("Guard"), S("EA"), S("38.50"));
  project.Room(S("A"), {RoomLine(S("Guard"), S("4"), S("EA"), S("NORTH"))});
  const QString head =
      S("   Guard                NORTH                   4 EA     Unit price item");
  EXPECT_EQ(FieldCopy(project.Source()).lines[4], head);
  EXPECT_EQ(OfficeCopy(project.Source(), {}).lines[4], head);
  EXPECT_EQ(FieldCopy(project.Source()).lines[5], S(""));
}

TEST(Copies, TheFieldCopyHasARuleBeforeEveryDetailLineAndNoDollars) {
  BenchProject project(DataPathOf(S("riverside/home/Tamo/Projects/07-2611004/")));
  const TakeoffCopy copy = FieldCopy(project.Source());
  int details = 0;
  for (qsizetype i = 0; i < copy.lines.size(); ++i) {
    const bool detail = copy.rows->IsDetail(i);
    EXPECT_EQ(detail, copy.lines[i].startsWith(S("___  ")));
    details += detail ? 1 : 0;
    if (detail) {
      EXPECT_TRUE(copy.lines[i].endsWith(S("Manhours")) || copy.lines[i].contains(S("(s)")));
    }
  }
  EXPECT_GT(details, 100);
  EXPECT_EQ(copy.total, 0);
}

TEST(Copies, ARoomWithoutLinesPrintsItsNameAndABlankLine) {
  BenchProject project;
  project.Room(S("Storage"), {});
  EXPECT_EQ(FieldCopy(project.Source()).lines,
            (QStringList{S("Project Manager"), S("Field Copy"), S(""), S("Storage"), S(""),
                         QString(63, QLatin1Char('_')), S("")}));
}

TEST(Copies, TheOfficeCopyEndsWithTheManhoursRaised) {
  BenchProject project;
  project.System(S("Door"), S("EA"), S(""), {kSlab});
  project.Area(S("A"), {AreaLine(S("Door"), S("1.56"), S("EA"))});
  const QStringList lines = OfficeCopy(project.Source(), {}).lines.ToList();
  EXPECT_EQ(lines.mid(lines.size() - 5),
            (QStringList{QString(63, QLatin1Char('_')), S(""),
                         S("   This project will take 4 manhours to complete"),  // 3.12
                         S("   excluding all unit priced descriptions and quantities."), S("")}));
}

TEST(Copies, ARoomsQuantityIsReadInTheTenColumnsFrom33) {
  BenchProject project;
  project.System(S("Door"), S("EA"), S(""), {kSlab});
  project.Room(S("A"), {RoomLine(S("Door"), S("12345.5"), S("EA"))});
  // Right-aligned in 14 columns, "12345.5" reads "123" in the first ten.
  EXPECT_EQ(FieldCopy(project.Source()).lines[5],
            S("___  Slab                         123.00 EA(s)   "));
  ReportSource whole = project.Source();
  whole.wholeQuantities = true;
  EXPECT_EQ(FieldCopy(whole).lines[5], S("___  Slab                       12345.50 EA(s)   "));
}

TEST(Copies, AQuantityReadInPartIsNotedWithItsHeadLine) {
  BenchProject project;
  project.System(S("Door"), S("EA"), S(""), {kSlab});
  project.Room(S("A"),
               {RoomLine(S("Door"), S("5"), S("EA")), RoomLine(S("Door"), S("0"), S("EA"))});
  project.Area(S("B"), {AreaLine(S("Door"), S("5"), S("EA"))});
  const TakeoffCopy copy = FieldCopy(project.Source());
  EXPECT_TRUE(copy.partlyRead);
  ASSERT_EQ(copy.notes.size(), 1u);
  EXPECT_EQ(copy.notes[0].rows, std::vector<int>{4});
}

TEST(Copies, AnOfficeLineCarriesItsOwnMarkups) {
  BenchProject project;
  project.System(S("Door"), S("EA"), S(""), {kSlab});
  project.Area(S("A"), {AreaLine(S("Door"), S("1.555"), S("EA"))});
  Markups texts;
  texts.MOH = S(".10");
  texts.LOH = S(".25");
  texts.MIMU = S(".05");
  const TakeoffCopy copy = OfficeCopy(project.Source(), texts);
  // 1.55 x 10 = 15.5, and .15 of it: 17.825, raised to 18. 3.11 hours x 40 = 124.4, and .30 of it,
  // 37.32 rounded to 37: 161.4, rounded to 161.
  EXPECT_EQ(copy.lines[4],
            S("   Door                                    1.555 EA                    179.00"));
  EXPECT_EQ(copy.lines[5], S("     Slab                           1.55 EA(s)           18.00"));
  EXPECT_EQ(copy.lines[6], S("     Labor                          3.11 Manhours        161.00"));
  EXPECT_EQ(copy.total, 179);
  EXPECT_EQ(copy.labor, 161);
  EXPECT_EQ(copy.material, 18);
}

TEST(Copies, TheHeadOfAnAreaLineTakesItsLast28Characters) {
  BenchProject project;
  project.System(S("Door"), S("EA"), S("1"));
  project.Area(S("A"), {S("Door 3 EA"), AreaLine(S("Ceiling Paint Flat"), S("640"))});
  const QStringList lines = FieldCopy(project.Source()).lines.ToList();
  EXPECT_EQ(lines[4], S("   Door 3 EA           Door 3 EA"));
  EXPECT_EQ(lines[5].left(51), S("   Ceiling Paint Flat  int Flat              640 SF"));
}

TEST(Copies, UnitsOfManyCharactersLeaveNoBlankAndHideTheDollarsFromTheSum) {
  BenchProject project;
  Material slab = kSlab;
  slab.orderUnit = S("SHEET");
  slab.wage = S("0");
  project.System(S("Door"), S("EA"), S(""), {slab});
  project.Area(S("A"), {AreaLine(S("Door"), S("3"), S("EA"))});
  const TakeoffCopy copy = OfficeCopy(project.Source(), {});
  EXPECT_EQ(copy.lines[5], S("     Slab                           3.00 SHEET(s)        30.00"));
  // The last 14 characters begin with the ")", so they read as nothing.
  EXPECT_EQ(copy.total, 0);
  EXPECT_TRUE(copy.lines[4].endsWith(S("  0.00")));
}

TEST(Copies, AMaterialCalledLaborCountsAsLabor) {
  BenchProject project;
  Material labor = kSlab;
  labor.name = S("Labor");
  labor.wage = S("0");
  project.System(S("Door"), S("EA"), S(""), {labor});
  project.Area(S("A"), {AreaLine(S("Door"), S("3"), S("EA"))});
  const TakeoffCopy copy = OfficeCopy(project.Source(), {});
  EXPECT_EQ(copy.labor, 30);
  EXPECT_EQ(copy.material, 0);
}

TEST(Copies, LinesOf0AreListed) {
  BenchProject project;
  project.System(S("Door"), S("EA"), S(""), {kSlab});
  project.Room(S("A"), {RoomLine(S("Door"), S("0"), S("EA"))});
  EXPECT_EQ(FieldCopy(project.Source()).lines.size(), 3 + 1 + 3 + 1 + 2);
}

TEST(Copies, ASystemWithoutAFileHasNoDetailLinesAndKeepsTheUnitPriceBefore) {
  BenchProject project;
  project.System(S("Guard"), S("EA"), S("38.50"));
  project.Room(S("A"), {RoomLine(S("Gone"), S("1")), RoomLine(S("Guard"), S("1")),
                        RoomLine(S("Gone"), S("1"))});
  const TakeoffCopy copy = OfficeCopy(project.Source(), {});
  EXPECT_FALSE(copy.lines[4].contains(S("Unit price item")));
  EXPECT_TRUE(copy.lines[6].endsWith(S("Unit price item")));
  EXPECT_EQ(copy.notes.size(), 2u);
}

TEST(Copies, ARatioOf0StopsThemAlsoForAQuantityOf0) {
  BenchProject project;
  Material slab = kSlab;
  slab.orderTag = S("upo");
  slab.ratio = S("0");
  project.System(S("Door"), S("EA"), S(""), {slab});
  project.Room(S("A"), {RoomLine(S("Door"), S("0"), S("EA"))});
  EXPECT_THROW(FieldCopy(project.Source()), RunTimeFailure);
  EXPECT_THROW(OfficeCopy(project.Source(), {}), RunTimeFailure);
}

struct FigureRow {
  double figure;
  const char* whole;
  const char* withPoint;
};
class FigureTable : public ::testing::TestWithParam<FigureRow> {};

TEST_P(FigureTable, WholeNumbersAndHundredths) {
  const FigureRow& row = GetParam();
  EXPECT_EQ(NumberText(row.figure), QLatin1String(row.whole));
  EXPECT_EQ(WithPoint(row.figure), QLatin1String(row.withPoint));
}

INSTANTIATE_TEST_SUITE_P(
    Copies, FigureTable,
    ::testing::Values(FigureRow{0, "0", ".00"}, FigureRow{5, "5", ".05"},
                      FigureRow{12, "12", ".12"}, FigureRow{1234, "1234", "12.34"},
                      FigureRow{-5, "-5", ".-5"}, FigureRow{-12, "-12", "-.12"},
                      FigureRow{-250, "-250", "-2.50"},
                      FigureRow{999999999999999, "999999999999999", "9999999999999.99"},
                      FigureRow{-999999999999999, "-999999999999999", "-9999999999999.99"},
                      FigureRow{1e15, "1000000000000000", "10000000000000.00"},
                      FigureRow{1e20, "100000000000000000000", "1000000000000000000.00"}));

QStringList BreakDownOf(BenchProject& project) {
  QString adjustment;
  return BreakDown(MakeBreak(project.Source(), project.MarkupsOfFile(), adjustment)).lines.ToList();
}

TEST(BreakDownReport, EveryFigureIs0WithoutTakeoff) {
  BenchProject project;
  project.Items({S("Bond                   1000.00")});
  project.Adjust(S("250"));
  project.Write(S("Markups.tamo"), QStringList(12, S(".10")));
  for (const QString& line : BreakDownOf(project)) {
    if (line.contains(QLatin1Char(':'))) {
      EXPECT_TRUE(line.endsWith(S(" 0.00")) || line.endsWith(S(" 0 %"))) << line.toStdString();
    }
  }
  EXPECT_EQ(BreakDownOf(project).size(), 36);
}

TEST(BreakDownReport, AProjectOfUnitPricedItemsAloneFails) {
  BenchProject project;
  project.System(S("Guard"), S("EA"), S("38.50"));
  project.Room(S("A"), {RoomLine(S("Guard"), S("4"), S("EA"))});
  try {
    BreakDownOf(project);
    ADD_FAILURE() << "it did not stop";
  } catch (const RunTimeFailure& failure) {
    EXPECT_EQ(failure.number, kDivisionByZero);
    EXPECT_TRUE(failure.text.contains(S("unit-priced items alone has no breakdown")));
  }
}

TEST(BreakDownReport, TwiceGivesTheSameFigures) {
  BenchProject project(DataPathOf(S("riverside/home/Tamo/Projects/07-2611004/")));
  EXPECT_EQ(BreakDownOf(project), BreakDownOf(project));
}

TEST(BreakDownReport, LaborTaxIsTruncatedAndLaborOverheadRounded) {
  BenchProject project;
  // 1015 dollars of labor.
  project.System(
      S("Work"), S("HR"), S(""),
      {{S("Crew"), S("HR"), S("0"), S("1"), S("opu"), S("1"), S("mpu"), S("0"), S("1")}});
  project.Room(S("A"), {RoomLine(S("Work"), S("1015"), S("HR"))});
  project.Write(S("Markups.tamo"), {S("0"), S("0"), S("0"), S(".10"), S(".10")});
  const QStringList lines = BreakDownOf(project);
  EXPECT_EQ(lines[7], S("        Labor Overhead:                102.00"));
  EXPECT_EQ(lines[8], S("        Labor Tax:                     101.00"));
}

TEST(BreakDownReport, ALeastChargeOfABrokenWageIsRaisedOnceMore) {
  BenchProject project;
  project.System(
      S("Work"), S("HR"), S(""),
      {{S("Crew"), S("HR"), S("0"), S("1"), S("opu"), S(".1"), S("mpu"), S("0"), S("46.50")}});
  project.Room(S("A"), {RoomLine(S("Work"), S("1"), S("HR"))});
  QString adjustment;
  EXPECT_EQ(MakeBreak(project.Source(), {}, adjustment).roll.rawLabor, 47);
}

TEST(BreakDownReport, UnitPricedItemsThatItLeavesOutAreNotedWithTheirSum) {
  BenchProject project(DataPathOf(S("riverside/home/Tamo/Projects/07-2611004/")));
  QString adjustment;
  const Report report = BreakDown(MakeBreak(project.Source(), project.MarkupsOfFile(), adjustment));
  ASSERT_EQ(report.notes.size(), 2u);
  EXPECT_TRUE(report.notes[0].text.contains(S("Carpet Broadloom, Corner Guard 4ft, Fire Caulk")));
  EXPECT_TRUE(report.notes[0].text.contains(S("2375.00")));
  EXPECT_EQ(report.notes[0].rows, (std::vector<int>{2, 32}));
  EXPECT_TRUE(report.notes[1].text.contains(S("Lift Rental")));
}

}  // namespace
}  // namespace tamo::test
