#include "plans/sheetnumber.h"

#include <gtest/gtest.h>

#include <chrono>

using namespace tamo;

namespace {

constexpr PageSize kSheet = {2592, 1728};

// Text as it stands on a sheet that lies for its reader: from the left, base line, letters' height.
struct Placed {
  QString text;
  double x = 0;
  double y = 0;
  double size = 8;
};

PagePoint Turned(PagePoint at, int quarter, PageSize size) {
  switch (quarter) {
    case 1:
      return {size.height - at.y, at.x};
    case 2:
      return {size.width - at.x, size.height - at.y};
    case 3:
      return {at.y, size.width - at.x};
    default:
      return at;
  }
}

// The same sheet looked at after so many quarter turns clockwise.
std::vector<PageTextLine> Lines(const std::vector<Placed>& texts, int quarter = 0,
                                PageSize size = kSheet) {
  static const double directions[4][2] = {{1, 0}, {0, 1}, {-1, 0}, {0, -1}};
  std::vector<PageTextLine> lines;
  for (const Placed& placed : texts) {
    const double wide = 0.6 * placed.size * double(placed.text.size());
    PageTextLine line = {placed.text, NoBox(), placed.size, directions[quarter][0],
                         directions[quarter][1]};
    line.box.Take(Turned({placed.x, placed.y - placed.size}, quarter, size));
    line.box.Take(Turned({placed.x + wide, placed.y + 0.2 * placed.size}, quarter, size));
    lines.push_back(line);
  }
  return lines;
}

PageSize SizeTurned(int quarter) {
  return quarter % 2 == 0 ? kSheet : PageSize{kSheet.height, kSheet.width};
}

// What stands on the sheet beside the title block.
const std::vector<Placed> kDrawing = {{"101", 300, 300},
                                      {"A101", 500, 300},
                                      {"W3", 640, 420, 6},
                                      {"OFFICE", 500, 290},
                                      {"CORRIDOR", 700, 600},
                                      {"EXIST. WALL", 90, 80},
                                      {"GENERAL NOTES", 1900, 100, 12},
                                      {"1. SEE A-801", 1900, 120},
                                      {"2. VERIFY IN FIELD", 1900, 134},
                                      {"SCALE: 1/8\" = 1'-0\"", 300, 1500}};

std::vector<Placed> With(std::vector<Placed> block) {
  block.insert(block.begin(), kDrawing.begin(), kDrawing.end());
  return block;
}

// A strip along the right edge: labels over what they announce.
const std::vector<Placed> kStrip = With({{"PROJECT NO:", 2390, 1440, 6},
                                         {"2021-118", 2390, 1452},
                                         {"DATE: 11/02/2021", 2390, 1470, 6},
                                         {"SHEET TITLE", 2390, 1500, 6},
                                         {"FINISH SCHEDULE", 2390, 1522, 14},
                                         {"AND LEGENDS", 2390, 1538, 14},
                                         {"SHEET NUMBER", 2390, 1600, 6},
                                         {"A-601", 2400, 1660, 40}});

// A block along the lower edge: labels before their texts on one line.
const std::vector<Placed> kFoot = With({{"DRAWN BY: JD", 1500, 1640, 7},
                                        {"DRAWING TITLE:", 1800, 1640, 7},
                                        {"SECOND FLOOR PLAN", 1880, 1640, 12},
                                        {"SCALE: AS NOTED", 1800, 1660, 7},
                                        {"DWG. NO.", 2360, 1640, 7},
                                        {"A2.01", 2380, 1680, 30}});

// No labels at all: the number in the corner, the name over it.
const std::vector<Placed> kBare = With({{"LARKSPUR CLINIC", 2300, 1200, 12},
                                        {"REFLECTED", 2360, 1560, 16},
                                        {"CEILING PLAN", 2360, 1580, 16},
                                        {"A121", 2370, 1650, 44}});

// The label under what it announces.
const std::vector<Placed> kUnder = With({{"ROOM FINISHES", 2300, 1500, 12},
                                         {"DRAWING TITLE", 2300, 1512, 5},
                                         {"ID-501", 2340, 1640, 28},
                                         {"DRAWING NO", 2340, 1652, 5}});

}  // namespace

TEST(SheetNumber, TitleBlocksOfSeveralOffices) {
  const std::pair<const std::vector<Placed>*, SheetTitle> blocks[] = {
      {&kStrip, {"A-601", "FINISH SCHEDULE AND LEGENDS"}},
      {&kFoot, {"A2.01", "SECOND FLOOR PLAN"}},
      {&kBare, {"A121", "REFLECTED CEILING PLAN"}},
      {&kUnder, {"ID-501", "ROOM FINISHES"}}};
  for (const auto& [block, title] : blocks) {
    for (int quarter = 0; quarter < 4; ++quarter) {
      const SheetTitle found = SheetTitleOf(Lines(*block, quarter), SizeTurned(quarter));
      EXPECT_EQ(found.number.toStdString(), title.number.toStdString()) << quarter;
      EXPECT_EQ(found.name.toStdString(), title.name.toStdString()) << quarter;
    }
  }
}

// Letters that run up the right edge of a sheet that lies for its reader.
TEST(SheetNumber, AStripThatReadsUpwards) {
  std::vector<PageTextLine> lines = Lines(kDrawing);
  const PageSize turned = {kSheet.height, kSheet.width};
  const std::vector<Placed> strip = {
      {"SHEET TITLE", 60, 2400, 6}, {"DOOR SCHEDULE", 60, 2420, 16}, {"A-602", 60, 2500, 36}};
  for (PageTextLine line : Lines(strip, 3, turned)) lines.push_back(line);
  EXPECT_EQ(SheetTitleOf(lines, kSheet).number, "A-602");
  EXPECT_EQ(SheetTitleOf(lines, kSheet).name, "DOOR SCHEDULE");
}

TEST(SheetNumber, NumberAndLabelOnOneLine) {
  const auto title = SheetTitleOf(
      Lines(With({{"SHEET NO. A-101", 2380, 1660, 12}, {"TITLE: ROOF PLAN", 2380, 1640, 8}})),
      kSheet);
  EXPECT_EQ(title.number, "A-101");
  EXPECT_EQ(title.name, "ROOF PLAN");
}

// What could as well be something else is not taken.
TEST(SheetNumber, NothingIsGuessed) {
  const std::vector<std::vector<Placed>> doubtful = {
      {},
      kDrawing,
      With({{"A101", 2400, 1600, 8}}),                               // a door in the corner
      With({{"A-101", 2300, 1600, 30}, {"B-201", 2450, 1600, 30}}),  // two of a size
      With({{"REV 3", 2400, 1600, 40}}),
      With({{"NOV-21", 2400, 1600, 40}}),
      With({{"SHEET 3 OF 12", 2400, 1600, 12}}),
      With({{"SHEET NO.", 2390, 1600, 6}, {"A-101", 2390, 1620, 12}, {"B-900", 2300, 1690, 40}}),
      With({{"SHEET NUMBER", 2390, 1600, 6}, {"LARKSPUR", 2390, 1620, 12}})};
  for (const std::vector<Placed>& texts : doubtful) {
    EXPECT_EQ(SheetTitleOf(Lines(texts), kSheet).number, "")
        << (texts.empty() ? "" : texts.back().text.toStdString());
  }
}

TEST(SheetNumber, ANumberStaysWithoutAName) {
  const auto title = SheetTitleOf(
      Lines(With({{"DATE: 1/2/2021", 2380, 1600, 8}, {"M-101", 2380, 1670, 40}})), kSheet);
  EXPECT_EQ(title.number, "M-101");
  EXPECT_EQ(title.name, "");
}

TEST(SheetNumber, WhatIsANumber) {
  for (const char* text :
       {"A-601", "A6.01", "M101", "FP-2.1a", "AD1.0", "A-101.1", "A2-01", "S 201"})
    EXPECT_TRUE(IsSheetNumber(text)) << text;
  for (const char* text : {"", "601", "A", "TX 75201", "REV 1", "JAN 12", "12/02/21", "A-601B-44-2",
                           "WALL", "2021-118", "a-601", "ABCD-1"})
    EXPECT_FALSE(IsSheetNumber(text)) << text;
}

TEST(SheetNumber, LabelsAndBookmarks) {
  EXPECT_EQ(SheetTitleOfLabel("A-601 - FINISH SCHEDULE"), (SheetTitle{"A-601", "FINISH SCHEDULE"}));
  EXPECT_EQ(SheetTitleOfLabel("[A6.01] Finish  Schedule"),
            (SheetTitle{"A6.01", "Finish Schedule"}));
  EXPECT_EQ(SheetTitleOfLabel("M101"), (SheetTitle{"M101", ""}));
  EXPECT_EQ(SheetTitleOfLabel("A601_Doors"), (SheetTitle{"A601", "Doors"}));
  for (const char* label : {"12", "iv", "Floor Plans", "A-601X99 Doors", "Rev 3"})
    EXPECT_EQ(SheetTitleOfLabel(label), SheetTitle()) << label;
}

TEST(SheetNumber, WaysToWriteOne) {
  for (const char* text : {"A-601", "a601", "A 601", "a.601"})
    EXPECT_EQ(PlainSheetNumber(text), "A601");
}

// More labels than any title block has name nothing, and take no time.
TEST(SheetNumber, ASheetFullOfLabels) {
  std::vector<Placed> block;
  for (int i = 0; i < 60000; ++i)
    block.push_back({i % 2 == 0 ? "SHEET NO." : "SHEET TITLE", 2300.0 + i % 250, 900.0 + i / 80});
  const auto began = std::chrono::steady_clock::now();
  EXPECT_EQ(SheetTitleOf(Lines(block), kSheet), SheetTitle());
  EXPECT_LT(std::chrono::steady_clock::now() - began, std::chrono::seconds(5));
}
