#include "schedule/texttable.h"

#include <gtest/gtest.h>

#include "schedule/columnmeaning.h"
#include "schedule/scheduleedits.h"

namespace tamo {
namespace {

TEST(TextTable, CellsAreCutByTabsOrCommas) {
  const auto tabs = CellsOfText("101\tHALL, WEST\tP-1\r\n\r\n102\t\"MEN\nWEST\"\t\"\r\n");
  ASSERT_EQ(tabs.size(), 2u);
  EXPECT_EQ(tabs[0], QStringList({"101", "HALL, WEST", "P-1"}));
  EXPECT_EQ(tabs[1], QStringList({"102", "MEN WEST", "\""}));
  EXPECT_EQ(CellsOfText("1\t\"\n2\t\"\n").size(), 2u);
  const auto commas = CellsOfText("101,\"HALL, WEST\",\"9'-0\"\"\"\n102;A,B,\n");
  EXPECT_EQ(commas[0], QStringList({"101", "HALL, WEST", "9'-0\""}));
  EXPECT_EQ(commas[1], QStringList({"102;A", "B", ""}));
  EXPECT_EQ(CellsOfText("101;HALL;P-1")[0], QStringList({"101", "HALL", "P-1"}));
}

TEST(TextTable, HeadsNameTheColumns) {
  const ScheduleReading reading = ReadTextSchedule(
      "FINISH SCHEDULE\t\t\t\t\t\nNO.\tNAME\tFLOOR\tBASE\tWALLS\tCLG\tCLG HT\n"
      "101\tHALL\tCPT-1\tRB-1\tP-1\tACT-1\t9'-0\"\n102\tMEN\t\"\tRB-1\tP-2\tGYP\t\n");
  ASSERT_EQ(reading.problem, QString());
  const auto rows = FinishRowsOf(reading.parts);
  ASSERT_EQ(rows.size(), 2u);
  EXPECT_EQ(rows[0].Text(), "101\tHALL\tCPT-1\tRB-1\tP-1\tP-1\tP-1\tP-1\tACT-1 9'-0\"\t");
  EXPECT_EQ(rows[1].Text(), "102\tMEN\tCPT-1\tRB-1\tP-2\tP-2\tP-2\tP-2\tGYP\t");
}

TEST(TextTable, AHeadOverSeveralColumns) {
  const ScheduleReading reading = ReadTextSchedule(
      "NO.\tNAME\tFLOOR\tBASE\tWALLS\t\t\t\tCEILING\n\t\t\t\tN\tE\tS\tW\t\n"
      "FIRST FLOOR\t\t\t\t\t\t\t\t\n101\tHALL\tCPT-1\tRB-1\tA\tB\tC\tD\tACT-1\n");
  ASSERT_EQ(reading.problem, QString());
  const auto rows = FinishRowsOf(reading.parts);
  ASSERT_EQ(rows.size(), 1u);
  EXPECT_EQ(rows[0].Text(), "101\tHALL\tCPT-1\tRB-1\tA\tB\tC\tD\tACT-1\t");
}

TEST(TextTable, WhatIsNoScheduleIsRefused) {
  EXPECT_FALSE(ReadTextSchedule(QString()).problem.isEmpty());
  EXPECT_FALSE(ReadTextSchedule("a letter to the architect\nwithout any table").problem.isEmpty());
  EXPECT_FALSE(ReadTextSchedule("NO.\tNAME\tFLOOR\tBASE\tWALLS").problem.isEmpty());
}

TEST(ColumnMeaning, IsKnownByItsNameOrItsBeginning) {
  EXPECT_EQ(MeaningCalled("ceiling"), ColumnRole::Ceiling);
  EXPECT_EQ(MeaningCalled("ceil"), ColumnRole::Ceiling);
  EXPECT_EQ(MeaningCalled("None"), ColumnRole::Other);
  EXPECT_EQ(MeaningCalled("North"), ColumnRole::North);
  EXPECT_FALSE(MeaningCalled("n").has_value());
  EXPECT_FALSE(MeaningCalled("").has_value());
}

TEST(ScheduleEdits, StayWithTheirRow) {
  std::vector<FinishRow> rows(3);
  for (int i = 0; i < 3; ++i) rows[size_t(i)].row = i;
  ScheduleEdits edits;
  edits.LeaveOut(rows[0]);
  edits.Correct(rows[1], 2, "CPT-1");
  edits.ApplyTo(rows);
  ASSERT_EQ(rows.size(), 2u);
  EXPECT_EQ(rows[0].cells[2], "CPT-1");
  edits.Clear();
  std::vector<FinishRow> again(3);
  edits.ApplyTo(again);
  EXPECT_EQ(again.size(), 3u);
}

}  // namespace
}  // namespace tamo
