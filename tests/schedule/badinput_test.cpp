#include <gtest/gtest.h>

#include <chrono>

#include "schedule/schedulereader.h"
#include "schedule/schedulerows.h"
#include "sheetmaker.h"

// What a box may hold instead of a schedule: each is said in words, and nothing is taken.

namespace tamo {
namespace {

const QStringList kHeads = {"NO.", "ROOM NAME", "FLOOR", "BASE", "WALLS", "CEILING"};
const QStringList kLobby = {"101", "LOBBY", "CPT-1", "RB-1", "P-1", "ACT-1"};

void ExpectRefused(const ScheduleReading& reading, const char* word) {
  EXPECT_TRUE(reading.parts.empty());
  EXPECT_TRUE(reading.problem.contains(QLatin1String(word))) << reading.problem.toStdString();
}

TEST(BadInput, ABoxAroundNothing) {
  SheetMaker sheet;
  sheet.Table(50, 50, {kHeads, kLobby});
  ExpectRefused(ReadSchedule(sheet.Page(), PageBox{800, 600, 900, 700}), "nothing in the box");
}

TEST(BadInput, ABoxThatIsAPoint) {
  SheetMaker sheet;
  sheet.Table(50, 50, {kHeads, kLobby});
  ExpectRefused(ReadSchedule(sheet.Page(), PageBox{60, 60, 60, 60}), "the box");
}

TEST(BadInput, ABoxAroundADrawing) {
  SheetMaker lines;
  for (int i = 0; i < 200; ++i) lines.Line(10 + i, 10, 300, 20 + 2 * i);
  ExpectRefused(ReadSchedule(lines.Page(), PageBox{0, 0, 400, 500}), "only lines");
  lines.Text(50, 100, "OFFICE").Text(150, 100, "102").Text(50, 300, "HALL").Text(200, 310, "110");
  ExpectRefused(ReadSchedule(lines.Page(), PageBox{0, 0, 400, 500}), "no room finish schedule");
}

TEST(BadInput, ALegendInsteadOfASchedule) {
  SheetMaker sheet;
  sheet.Table(50, 50,
              {{"CODE", "DESCRIPTION", "MANUFACTURER", "COLOR"},
               {"CPT-1", "CARPET", "MILL A", "BLUE"},
               {"P-1", "PAINT", "MAKER B", "WHITE"}});
  ExpectRefused(ReadSchedule(sheet.Page(), PageBox{40, 40, 460, 120}), "legend");
}

TEST(BadInput, HeadsWithoutRows) {
  SheetMaker sheet;
  sheet.Table(50, 50, {kHeads});
  const ScheduleReading reading = ReadSchedule(sheet.Page(), PageBox{40, 40, 660, 80});
  EXPECT_TRUE(reading.parts.empty());
  EXPECT_FALSE(reading.problem.isEmpty());
}

TEST(BadInput, HalfATableOnEverySide) {
  SheetMaker sheet;
  std::vector<QStringList> rows = {kHeads};
  for (int i = 0; i < 12; ++i) rows.push_back(kLobby);
  sheet.Table(50, 50, rows);
  const PageBox boxes[] = {
      {40, 40, 355, 320}, {245, 40, 660, 320}, {40, 40, 660, 160}, {40, 155, 660, 320}};
  for (const PageBox& box : boxes) {
    const ScheduleReading reading = ReadSchedule(sheet.Page(), box);
    EXPECT_TRUE(reading.parts.empty());
    EXPECT_FALSE(reading.problem.isEmpty());
  }
}

TEST(BadInput, TextThatIsWrittenDownwards) {
  SheetMaker sheet;
  sheet.Table(50, 50, {kHeads, kLobby});
  for (TextPiece& piece : sheet.Page().texts) piece.vertical = true;
  ExpectRefused(ReadSchedule(sheet.Page(), PageBox{40, 40, 660, 120}), "downwards");
}

// The whole page is refused in no time; a box around the table on it is read.
TEST(BadInput, APageOfAHundredThousandWords) {
  SheetMaker sheet;
  sheet.Table(50, 50, {kHeads, kLobby});
  for (int i = 0; i < 100000; ++i) {
    sheet.Text(20 + 7 * (i % 160), 160 + double(i) * 0.006, "NOTE", 3);
  }
  const auto start = std::chrono::steady_clock::now();
  ExpectRefused(ReadSchedule(sheet.Page(), std::nullopt), "too much text");
  const ScheduleReading boxed = ReadSchedule(sheet.Page(), PageBox{40, 40, 660, 100});
  EXPECT_EQ(boxed.problem.toStdString(), "");
  ASSERT_EQ(FinishRowsOf(boxed.parts).size(), 1u);
  const auto took = std::chrono::steady_clock::now() - start;
  EXPECT_LT(std::chrono::duration_cast<std::chrono::seconds>(took).count(), 10);
}

}  // namespace
}  // namespace tamo
