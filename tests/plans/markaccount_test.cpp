#include "plans/markaccount.h"

#include <gtest/gtest.h>

#include <QElapsedTimer>

#include "plans/markspanel.h"
#include "plans/marktotals.h"
#include "records/areafile.h"
#include "records/arealine.h"
#include "records/roomfile.h"
#include "records/roomline.h"
#include "records/sheetnames.h"
#include "support/room.h"

// What a mark was entered into, held against the takeoff as it stands.

namespace tamo::test {
namespace {

struct Account : ::testing::Test, FormRoom {
  Account() {
    shared.DataPath = Path("Tamo/");
    shared.JobID = QStringLiteral("12-2611001");
    for (const char* folder : {"Tamo/Projects/12-2611001/Rooms", "Tamo/Projects/12-2611001/ATOs"})
      QDir().mkpath(Path(folder));
    WriteRoomNames(files, ProjectFolder(shared), {"101", "102"});
    WriteAreaNames(files, ProjectFolder(shared), {"East"});
    PutRoom("101", {RoomLine::Of("Paint", "Walls", "120", "SF").Text()});
  }
  void PutRoom(const char* room, const QStringList& lines) {
    WriteRoomFile(files, ProjectFolder(shared), room, "8", lines);
  }
  static MarkTie Tie(const char* said, double before, double after) {
    return {{"12-2611001", false, "101", "Paint"}, "8 X 10.0", false, said, "SF", 8, before, after};
  }
  static Mark Line(int number, const MarkTie& tie, const char* label = "10.0 feet @ 1/4\"=1'") {
    Mark mark;
    mark.points = {{0, 0}, {180, 0}};
    mark.name = MarkName(number, 1);
    mark.label = label;
    mark.kept = TextOfTie(tie);
    return mark;
  }
  QStringList Flags(const std::vector<Mark>& marks) {
    TakeoffLines lines(kit);
    QStringList flags;
    for (const AccountedMark& mark : AccountOf(marks, lines)) flags += mark.flag;
    return flags;
  }
};

TEST(MarkTie, ComesBackAsItWasWritten) {
  MarkTie tie{
      {"12-2611001", true, "Hall (Süd)\n2", "Base"}, "10.0", true, "10.0", "LF", 0.25, -1.5, 120};
  const std::optional<MarkTie> read = TieOfText(TextOfTie(tie));
  ASSERT_TRUE(read.has_value());
  tie.place.sheet = "Hall (Süd) 2";
  EXPECT_EQ(*read, tie);
  EXPECT_EQ(read->place.InWords().toStdString(), "Area Hall (Süd) 2, Base");
}

TEST(MarkTie, WhatIsNoneIsNotTaken) {
  const QString good = TextOfTie(Account::Tie("10.0", 0, 80));
  EXPECT_TRUE(TieOfText(good).has_value());
  const QStringList parts = good.split('\n');
  for (int i = 0; i < parts.size(); ++i) {
    QStringList broken = parts;
    broken.removeAt(i);
    EXPECT_FALSE(TieOfText(broken.join('\n')).has_value()) << i;
    broken = parts;
    broken[i] = QString(500, 'x');
    EXPECT_FALSE(TieOfText(broken.join('\n')).has_value()) << i;
  }
  for (const char* number : {"nan", "inf", "1e99", "", "8 ft"}) {
    QStringList broken = parts;
    broken[10] = number;
    EXPECT_FALSE(TieOfText(broken.join('\n')).has_value()) << number;
  }
  EXPECT_FALSE(TieOfText(QString()).has_value());
  EXPECT_FALSE(TieOfText(QString(4000, '\n')).has_value());
}

TEST_F(Account, AMarkThatAgreesIsNotFlagged) {
  EXPECT_EQ(Flags({Line(1, Tie("10.0", 0, 80)), Line(2, Tie("10.0", 80, 120))}).join("|"), "|");
}

TEST_F(Account, AMarkWithoutAnEntryIsNotFlagged) {
  Mark mark;
  mark.points = {{0, 0}, {1, 1}};
  EXPECT_EQ(Flags({mark}).join("|"), "");
}

TEST_F(Account, AShapeThatWasChangedIsSaid) {
  EXPECT_EQ(Flags({Line(1, Tie("10.0", 0, 80), "12.0 feet @ 1/4\"=1'")}).join("|").toStdString(),
            "Changed since: entered as 10.0, says 12.0");
}

TEST_F(Account, ALineThatWentDownIsSaidOfAllBeforeIt) {
  PutRoom("101", {RoomLine::Of("Paint", "Walls", "100", "SF").Text()});
  EXPECT_EQ(
      Flags({Line(1, Tie("10.0", 0, 80)), Line(2, Tie("10.0", 80, 120))}).join("|").toStdString(),
      "The line went down since, from 120 to 100|The line went down since, from 120 to 100");
  // Between two entries: the later one stands.
  PutRoom("101", {RoomLine::Of("Paint", "Walls", "130", "SF").Text()});
  const QStringList flags = Flags({Line(1, Tie("10.0", 0, 80)), Line(2, Tie("10.0", 50, 130))});
  EXPECT_TRUE(flags[0].contains("from 80 to 50")) << flags[0].toStdString();
  EXPECT_EQ(flags[1], "");
}

TEST_F(Account, WhatWasTypedInBetweenIsNoChange) {
  PutRoom("101", {RoomLine::Of("Paint", "Walls", "500", "SF").Text()});
  EXPECT_EQ(Flags({Line(1, Tie("10.0", 0, 80)), Line(2, Tie("10.0", 200, 280))}).join("|"), "|");
}

TEST_F(Account, AnAreaThatACutOutTookOffIsNoChange) {
  MarkTie cut = Tie("-10.0", 120, 110);
  cut.entry = "1 X -10.0";
  PutRoom("101", {RoomLine::Of("Paint", "Walls", "110", "SF").Text()});
  EXPECT_EQ(Flags({Line(1, Tie("10.0", 0, 120)), Line(2, cut, "-10.0 sq ft @ 1/4\"=1'")}).join("|"),
            "|");
}

TEST_F(Account, ALineThatIsGoneIsSaid) {
  const std::vector<Mark> marks = {Line(1, Tie("10.0", 0, 80))};
  PutRoom("101", {RoomLine::Of("Base", "Walls", "120", "LF").Text()});
  EXPECT_EQ(Flags(marks).join("|"), "The line is not there any more");
  PutRoom("101", {RoomLine::Of("Paint", "Walls", "120", "SF").Text()});
  EXPECT_EQ(Flags(marks).join("|"), "");
  // The room is off its list; its file stays.
  WriteRoomNames(files, ProjectFolder(shared), {"102"});
  EXPECT_EQ(Flags(marks).join("|"), "The line is not there any more");
}

TEST_F(Account, AnotherProjectIsSaid) {
  MarkTie tie = Tie("10.0", 0, 80);
  tie.place.project = "07-2611004";
  EXPECT_EQ(Flags({Line(1, tie)}).join("|"), "Entered in another project: 07-2611004");
}

TEST_F(Account, NamesThatAreNoFileNamesReachNoFile) {
  for (const char* name : {"../../Jobs", "/etc/passwd", "..", "a\\b", ""}) {
    MarkTie tie = Tie("10.0", 0, 80);
    tie.place.sheet = name;
    Mark mark = Line(1, tie);
    EXPECT_FALSE(Flags({mark}).join("|").isEmpty()) << name;
    tie.place.area = true;
    mark.kept = TextOfTie(tie);
    EXPECT_FALSE(Flags({mark}).join("|").isEmpty()) << name;
  }
}

TEST_F(Account, WhatCantBeReadIsSaid) {
  Mark mark = Line(1, Tie("10.0", 0, 80));
  mark.kept = "anything";
  EXPECT_EQ(Flags({mark}).join("|"), "What it was entered into can't be read");
}

TEST_F(Account, OfAFreeArea) {
  WriteAreaFile(files, ProjectFolder(shared), "East", {AreaLine::Of("Base", "15", "LF").Text()});
  MarkTie tie = Tie("10.0", 5, 15);
  tie.place = {"12-2611001", true, "East", "Base"};
  EXPECT_EQ(Flags({Line(1, tie)}).join("|"), "");
  tie.after = 20;
  EXPECT_TRUE(Flags({Line(1, tie)}).join("|").contains("from 20 to 15"));
}

TEST_F(Account, TenThousandMarksAreListedAtOnce) {
  std::vector<Mark> marks;
  for (int i = 0; i < 10000; ++i) marks.push_back(Line(i + 1, Tie("10.0", i * 8, i * 8 + 8)));
  PutRoom("101", {RoomLine::Of("Paint", "Walls", "80000", "SF").Text()});
  QElapsedTimer since;
  since.start();
  TakeoffLines lines(kit);
  const std::vector<AccountedMark> account = AccountOf(marks, lines);
  QStringList rows;
  for (const size_t at : MarksInOrder(marks)) rows += MarkRow(marks[at], account[at]);
  EXPECT_LT(since.elapsed(), 1000);
  RecordProperty("milliseconds", int(since.elapsed()));
  EXPECT_EQ(rows.size(), 10000);
  EXPECT_EQ(rows[9999].toStdString(),
            "  1     Line       10.0 feet      Room 101, Paint: 8 X 10.0");
}

TEST_F(Account, LargeLinesAreToldApartToTheLastDigit) {
  // 10.0 twice, with something else in between: the line only grew.
  PutRoom("101", {RoomLine::Of("Paint", "Walls", "1000041", "SF").Text()});
  MarkTie other = Tie("20.0", 1000011, 1000031);
  other.entry = "20.0";
  EXPECT_EQ(Flags({Line(1, Tie("10.0", 1000001, 1000011)), Line(2, other, "20.0 feet @ 1/4\"=1'"),
                   Line(3, Tie("10.0", 1000031, 1000041))})
                .join("|")
                .toStdString(),
            "||");
}

TEST_F(Account, AMarkCarriedIntoAChangedPlaceIsFlagged) {
  Mark line;
  line.points = {{0, 0}, {1, 1}};
  line.label = "10.0 feet @ 1/4\"=1' - check: the drawing changed here";
  EXPECT_EQ(Flags({line}).join("|"), "Carried over, and the drawing changed here");
}

TEST_F(Account, ManyLegendsAreHeldAgainstTheTotalsOnce) {
  std::vector<Mark> marks;
  for (int i = 0; i < 4000; ++i) {
    marks.push_back(Line(i + 1, Tie("10.0", 0, 80)));
    Mark legend;
    legend.kind = Mark::Kind::Legend;
    legend.points = {{0, 0}};
    legend.label = "Totals of the plan";
    marks.push_back(legend);
  }
  QElapsedTimer since;
  since.start();
  EXPECT_TRUE(Flags(marks)[1].contains("Out of date"));
  EXPECT_LT(since.elapsed(), 2000);
}

TEST(MarkTotals, BySystemWithHeightsOnSheetAndPlan) {
  MarkTie tie = Account::Tie("10.0", 0, 80);
  Mark line = Account::Line(1, tie);
  Mark second = Account::Line(2, tie);
  second.page = 2;
  tie.height = true;
  const Mark height = Account::Line(3, tie);
  Mark loose;
  loose.points = {{0, 0}, {36, 0}};
  loose.label = "2.0 feet @ 1/4\"=1'";
  Mark circle;
  circle.kind = Mark::Kind::Circle;
  circle.points = {{5, 5}};
  const auto totals = TotalsOf({line, second, height, loose, circle, circle}, 1);
  ASSERT_EQ(totals.size(), 3U);
  EXPECT_EQ(totals[0].system, "Paint");
  EXPECT_EQ(totals[0].unit, "SF");
  EXPECT_EQ(totals[0].sheet, 80);
  EXPECT_EQ(totals[0].plan, 160);
  EXPECT_EQ(TotalInWords(totals[1].plan, totals[1].unit), "2.0 counted");
  EXPECT_EQ(TotalInWords(totals[2].plan, totals[2].unit), "2.0 feet");
  EXPECT_EQ(SystemInWords(totals[2]), "Not entered");
}

}  // namespace
}  // namespace tamo::test
