#include <gtest/gtest.h>

#include "schedule/alignment.h"
#include "schedule/rules.h"
#include "schedule/sheetdrawing.h"
#include "schedule/sheetword.h"
#include "sheetmaker.h"

namespace tamo {
namespace {

QStringList TextsOf(const PageContent& page) {
  QStringList texts;
  for (const Word& word : WordsOf(page.texts)) texts.append(word.text);
  return texts;
}

TEST(SheetWords, LettersDrawnOneByOneAreWords) {
  SheetMaker sheet;
  double x = 100;
  for (const QChar letter : QStringLiteral("CPT-1")) {
    sheet.Text(x, 50, letter);
    x += 6;
  }
  sheet.Text(x + 6, 50, "X");
  EXPECT_EQ(TextsOf(sheet.Page()), QStringList({"CPT-1", "X"}));
}

TEST(SheetWords, TextDrawnTwiceCountsOnce) {
  SheetMaker sheet;
  sheet.Text(100, 50, "LOBBY").Text(100.3, 50, "LOBBY");
  EXPECT_EQ(TextsOf(sheet.Page()), QStringList({"LOBBY"}));
}

TEST(SheetWords, HiddenTextIsCountedAndLeftOut) {
  SheetMaker sheet;
  sheet.Text(100, 50, "LOBBY");
  sheet.Page().texts.front().hidden = true;
  EXPECT_TRUE(WordsOf(sheet.Page().texts).empty());
  EXPECT_EQ(CountLetters(sheet.Page().texts).hidden, 5);
}

TEST(SheetWords, ATurnedTextIsOneWord) {
  SheetMaker sheet;
  sheet.Upwards(100, 200, "CEILING");
  const std::vector<Word> words = WordsOf(sheet.Page().texts);
  ASSERT_EQ(words.size(), 1u);
  EXPECT_EQ(words[0].way, Way::Up);
  EXPECT_NEAR(words[0].box.bottom, 200, 0.01);
  EXPECT_NEAR(words[0].box.top, 158, 0.01);
}

TEST(Rules, LinesAndThinAreasAreRulesAndPiecesAreJoined) {
  SheetMaker sheet;
  sheet.Line(10, 20, 60, 20).Line(60.5, 20, 100, 20).Area({10, 40, 100, 40.7});
  const std::vector<Rule> rules = RulesOf(sheet.Page().paths);
  ASSERT_EQ(rules.size(), 2u);
  EXPECT_NEAR(rules[0].from, 10, 0.01);
  EXPECT_NEAR(rules[0].to, 100, 0.01);
  EXPECT_NEAR(rules[1].at, 40.35, 0.01);
}

TEST(Rules, SlantedAndWhiteLinesAreNone) {
  SheetMaker sheet;
  sheet.Line(10, 20, 60, 30).Line(10, 50, 60, 50);
  sheet.Page().paths.back().colour = 0xffffff;
  EXPECT_TRUE(RulesOf(sheet.Page().paths).empty());
}

TEST(Deltas, TheNumberInsideIsNoText) {
  SheetMaker sheet;
  sheet.Triangle(100, 100, 20).Text(107, 97, "2", 8).Text(200, 97, "P-1");
  const SheetDrawing drawing = DrawingOf(sheet.Page());
  ASSERT_EQ(drawing.words.size(), 1u);
  EXPECT_EQ(drawing.words[0].text, "P-1");
}

TEST(Turning, ThereAndBack) {
  const PageSize size = {1000, 600};
  const PageBox box = {10, 20, 110, 60};
  for (const Way way : {Way::Right, Way::Up, Way::Left, Way::Down}) {
    const PageBox back = TurnedBack(TurnedBox(box, way, size), way, size);
    EXPECT_NEAR(back.left, box.left, 1e-6);
    EXPECT_NEAR(back.top, box.top, 1e-6);
    EXPECT_NEAR(back.right, box.right, 1e-6);
    EXPECT_NEAR(back.bottom, box.bottom, 1e-6);
  }
}

TEST(Alignment, GapsInCommonAreBorders) {
  const std::vector<Span> texts = {{0, 20, 0}, {40, 90, 0}, {0, 22, 0}, {40, 70, 0}, {100, 120, 0}};
  const std::vector<Span> heads = {{0, 15, 0}, {40, 60, 0}, {100, 118, 0}};
  const std::vector<double> borders = AlignedBorders(0, 130, texts, heads, 10);
  ASSERT_EQ(borders.size(), 2u);
  EXPECT_GT(borders[0], 22);
  EXPECT_LT(borders[0], 40);
  EXPECT_GT(borders[1], 90);
  EXPECT_LT(borders[1], 100);
}

TEST(Alignment, AHeadOverNothingIsAColumn) {
  const std::vector<double> borders =
      AlignedBorders(0, 130, {{0, 20, 0}, {0, 22, 0}}, {{0, 15, 0}, {60, 80, 0}}, 10);
  EXPECT_EQ(borders.size(), 1u);
}

}  // namespace
}  // namespace tamo
