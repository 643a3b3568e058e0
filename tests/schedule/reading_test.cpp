#include <gtest/gtest.h>

#include "schedule/schedulereader.h"
#include "schedule/schedulerows.h"
#include "sheetmaker.h"

namespace tamo {
namespace {

const QStringList kHeads = {"NO.", "NAME", "FLOOR", "BASE", "WALLS", "CEILING"};

std::vector<FinishRow> RowsOfPage(PageContent& page) {
  const ScheduleReading reading = ReadSchedule(page, std::nullopt);
  EXPECT_EQ(reading.problem.toStdString(), "");
  return FinishRowsOf(reading.parts);
}

TEST(Reading, WallsWithoutSidesStandInAllFour) {
  SheetMaker sheet;
  sheet.Table(50, 50, {kHeads, {"101", "LOBBY", "CPT-1", "RB-1", "P-1", "ACT-1"}});
  const auto rows = RowsOfPage(sheet.Page());
  ASSERT_EQ(rows.size(), 1u);
  EXPECT_EQ(rows[0].Text(), "101\tLOBBY\tCPT-1\tRB-1\tP-1\tP-1\tP-1\tP-1\tACT-1\t");
}

TEST(Reading, DittoMarksTakeWhatStandsAbove) {
  SheetMaker sheet;
  sheet.Table(50, 50,
              {kHeads,
               {"101", "LOBBY", "CPT-1", "\"", "P-1", "ACT-1"},
               {"102", "HALL", "\"", "RB-1", "P-1", "\""},
               {"103", "MEN", "\"", "RB-1", "P-1", ""}});
  const auto rows = RowsOfPage(sheet.Page());
  ASSERT_EQ(rows.size(), 3u);
  EXPECT_EQ(rows[2].cells[2], "CPT-1");
  EXPECT_EQ(rows[1].cells[8], "ACT-1");
  EXPECT_EQ(rows[0].cells[3], "\"");
  EXPECT_FALSE(rows[0].doubts[3].empty());  // nothing above it
  EXPECT_TRUE(rows[1].doubts[2].empty());
}

TEST(Reading, TitlesBetweenRowsAreNoRooms) {
  SheetMaker sheet;
  sheet.Table(50, 50,
              {kHeads,
               {"FIRST FLOOR", "", "", "", "", ""},
               {"101", "LOBBY", "CPT-1", "RB-1", "P-1", "ACT-1"},
               {"SECOND FLOOR", "", "", "", "", ""},
               {"201", "HALL", "CPT-1", "RB-1", "P-1", "ACT-1"}});
  const ScheduleReading reading = ReadSchedule(sheet.Page(), std::nullopt);
  ASSERT_EQ(reading.parts.size(), 1u);
  ASSERT_EQ(reading.parts[0].rows.size(), 2u);
  ASSERT_EQ(reading.parts[0].groups.size(), 2u);
  EXPECT_EQ(reading.parts[0].groups[1].before, 1);
  EXPECT_EQ(reading.parts[0].groups[1].text, "SECOND FLOOR");
}

TEST(Reading, ARowWithoutANumberIsMarked) {
  SheetMaker sheet;
  sheet.Table(50, 50,
              {kHeads,
               {"101", "LOBBY", "CPT-1", "RB-1", "P-1", "ACT-1"},
               {"", "HALL", "CPT-1", "RB-1", "P-1", "ACT-1"}});
  const auto rows = RowsOfPage(sheet.Page());
  ASSERT_EQ(rows.size(), 2u);
  EXPECT_FALSE(rows[1].doubts[0].empty());
}

TEST(Reading, ATextOverTheBorderIsMarked) {
  SheetMaker sheet;
  sheet.Table(50, 50,
              {kHeads,
               {"101", "LOBBY", "CPT-1", "RB-1", "P-1", "ACT-1"},
               {"102", "A VERY LONG NAME INDEED", "", "RB-1", "P-1", "ACT-1"}});
  const auto rows = RowsOfPage(sheet.Page());
  ASSERT_EQ(rows.size(), 2u);
  EXPECT_EQ(rows[1].cells[1].toStdString(), "A VERY LONG NAME INDEED");
  EXPECT_FALSE(rows[1].doubts[1].empty());
}

TEST(Reading, OneStringThatSpansTwoCellsIsTwoTexts) {
  SheetMaker sheet;
  sheet.Table(50, 50, {kHeads, {"101", "LOBBY", "", "", "P-1", "ACT-1"}});
  sheet.Text(255, 84, "CPT-1           RB-1");
  const auto rows = RowsOfPage(sheet.Page());
  ASSERT_EQ(rows.size(), 1u);
  EXPECT_EQ(rows[0].cells[2], "CPT-1");
  EXPECT_EQ(rows[0].cells[3], "RB-1");
}

TEST(Reading, TheBoxThatCutsATableIsRefused) {
  SheetMaker sheet;
  sheet.Table(50, 50,
              {kHeads,
               {"101", "LOBBY", "CPT-1", "RB-1", "P-1", "ACT-1"},
               {"102", "HALL", "CPT-1", "RB-1", "P-1", "ACT-1"}});
  const ScheduleReading half = ReadSchedule(sheet.Page(), PageBox{40, 40, 480, 200});
  EXPECT_TRUE(half.parts.empty());
  EXPECT_TRUE(half.problem.contains("cuts")) << half.problem.toStdString();
  EXPECT_EQ(ReadSchedule(sheet.Page(), PageBox{40, 40, 700, 200}).parts.size(), 1u);
}

TEST(Reading, WhatIsNoScheduleIsSaid) {
  SheetMaker empty;
  EXPECT_TRUE(ReadSchedule(empty.Page(), PageBox{0, 0, 100, 100}).problem.contains("nothing"));
  SheetMaker notes;
  notes.Text(100, 100, "ALL PAINT SHALL BE EGGSHELL");
  EXPECT_TRUE(ReadSchedule(notes.Page(), std::nullopt).problem.contains("no room finish schedule"));
  SheetMaker doors;
  doors.Table(50, 50, {{"DOOR NO.", "SIZE", "FRAME", "HDWR"}, {"101A", "3070", "HM", "4"}});
  EXPECT_TRUE(ReadSchedule(doors.Page(), std::nullopt).problem.contains("door schedule"));
}

TEST(Reading, TwoTablesInABoxAreRefused) {
  SheetMaker sheet;
  sheet.Table(50, 50, {kHeads, {"101", "LOBBY", "CPT-1", "RB-1", "P-1", "ACT-1"}});
  sheet.Table(50, 200, {{"DOOR NO.", "SIZE", "FRAME", "HDWR"}, {"101A", "3070", "HM", "4"}});
  EXPECT_TRUE(ReadSchedule(sheet.Page(), PageBox{0, 0, 1000, 500}).problem.contains("two tables"));
  EXPECT_EQ(ReadSchedule(sheet.Page(), std::nullopt).parts.size(), 1u);
}

TEST(Reading, AFurtherPartNeedsNoHeads) {
  SheetMaker sheet;
  sheet.Table(50, 50, {kHeads, {"101", "LOBBY", "CPT-1", "RB-1", "P-1", "ACT-1"}});
  const ScheduleReading first = ReadSchedule(sheet.Page(), std::nullopt);
  ASSERT_EQ(first.parts.size(), 1u);
  SheetMaker next;
  next.Table(50, 50,
             {{"102", "HALL", "CPT-1", "RB-1", "P-1", "ACT-1"},
              {"103", "MEN", "CT-1", "CT-2", "P-2", "ACT-2"}});
  const PageBox box = {50, 50, 650, 90};
  EXPECT_FALSE(ReadSchedule(next.Page(), box).problem.isEmpty());
  const ScheduleReading second = ReadSchedule(next.Page(), box, &first.parts[0]);
  EXPECT_EQ(second.problem.toStdString(), "");
  const auto rows = FinishRowsOf(second.parts);
  ASSERT_EQ(rows.size(), 2u);
  EXPECT_EQ(rows[1].Text().toStdString(), "103\tMEN\tCT-1\tCT-2\tP-2\tP-2\tP-2\tP-2\tACT-2\t");
}

TEST(Reading, MarksUnderTheFinishesAreRefused) {
  SheetMaker sheet;
  sheet.Table(50, 50,
              {{"NO.", "NAME", "FLOOR", "BASE", "WALLS", "CEILING"},
               {"101", "LOBBY", "X", "", "X", "X"},
               {"102", "HALL", "", "X", "X", ""}});
  const ScheduleReading reading = ReadSchedule(sheet.Page(), std::nullopt);
  EXPECT_TRUE(reading.parts.empty());
  EXPECT_TRUE(reading.problem.contains("marks")) << reading.problem.toStdString();
}

TEST(Reading, TwoColumnsThatMeanTheSameAreNeverSure) {
  SheetMaker sheet;
  sheet.Table(50, 50,
              {{"NO.", "NAME", "FLOOR", "FLOOR", "WALLS", "CEILING"},
               {"101", "LOBBY", "1", "CPT-1", "P-1", "ACT-1"}});
  const auto rows = RowsOfPage(sheet.Page());
  ASSERT_EQ(rows.size(), 1u);
  EXPECT_FALSE(rows[0].doubts[2].empty());
}

TEST(Reading, LettersOfAnotherScriptAreSaid) {
  SheetMaker sheet;
  sheet.Text(100, 100, QString(QChar(0x05d0)).repeated(20));
  EXPECT_TRUE(ReadSchedule(sheet.Page(), std::nullopt).problem.contains("right to left"));
}

}  // namespace
}  // namespace tamo
