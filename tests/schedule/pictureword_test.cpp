#include <gtest/gtest.h>

#include "schedule/pictureword.h"
#include "schedule/sheetword.h"

// What a recogniser of text writes, taken for words of a page.

namespace tamo {
namespace {

QByteArray Line(const QByteArray& places, const QByteArray& text) {
  return "5\t1\t1\t1\t1\t1\t" + places + "\t90\t" + text + "\n";
}

size_t WordsIn(const QByteArray& table) {
  return PictureWordsOf(table, 1000, 500).size();
}

TEST(PictureWords, AWordHasItsPlace) {
  const std::vector<PictureWord> words =
      PictureWordsOf(Line("100\t50\t80\t30", "CPT-1\r"), 1000, 500);
  ASSERT_EQ(words.size(), 1u);
  EXPECT_EQ(words[0].text, "CPT-1");
  EXPECT_EQ(words[0].box.left, 100);
  EXPECT_EQ(words[0].box.top, 50);
  EXPECT_EQ(words[0].box.right, 180);
  EXPECT_EQ(words[0].box.bottom, 80);
}

TEST(PictureWords, LinesOfOtherLevelsAreNoWords) {
  EXPECT_EQ(WordsIn("level\tpage_num\tblock_num\tpar_num\tline_num\tword_num\tleft\ttop\twidth\t"
                    "height\tconf\ttext\n4\t1\t1\t1\t1\t0\t10\t10\t90\t30\t-1\t\n"),
            0u);
}

TEST(PictureWords, NonsenseIsLeftOut) {
  EXPECT_EQ(WordsIn(""), 0u);
  EXPECT_EQ(WordsIn("Segmentation fault\n\n\t\t\n"), 0u);
  EXPECT_EQ(WordsIn(QByteArray(5000, '\xff')), 0u);
  EXPECT_EQ(WordsIn(QByteArray(5000, '\0')), 0u);
  EXPECT_EQ(WordsIn("5\t1\t1\t1\t1\t1\t10\t10\t90\t30\t90\n"), 0u);         // no text
  EXPECT_EQ(WordsIn("5\t1\t1\t1\t1\t1\t10\t10\t90\t30\t90\tA\tB\n"), 0u);   // too many fields
  EXPECT_EQ(WordsIn("5\t1\t1\t1\t1\t1\t10\t10\t90\t30\t-1\tCPT-1\n"), 0u);  // not sure at all
  EXPECT_EQ(WordsIn(Line("left\t10\t90\t30", "CPT-1")), 0u);
  EXPECT_EQ(WordsIn(Line("nan\t10\t90\t30", "CPT-1")), 0u);
  EXPECT_EQ(WordsIn(Line("10\t10\tinf\t30", "CPT-1")), 0u);
  EXPECT_EQ(WordsIn(Line("10\t10\t0\t30", "CPT-1")), 0u);
  EXPECT_EQ(WordsIn(Line("-10\t10\t90\t30", "CPT-1")), 0u);
  EXPECT_EQ(WordsIn(Line("950\t10\t90\t30", "CPT-1")), 0u);  // outside
  EXPECT_EQ(WordsIn(Line("10\t490\t90\t30", "CPT-1")), 0u);
  EXPECT_EQ(WordsIn(Line("10\t10\t90\t30", "  ")), 0u);
  EXPECT_EQ(WordsIn(Line("10\t10\t90\t30",
                         "A\x01"
                         "B")),
            0u);
  EXPECT_EQ(WordsIn(Line("10\t10\t90\t30", QByteArray(500, 'A'))), 0u);
}

TEST(PictureWords, RulesOfTheTableAreNoLetters) {
  const std::vector<PictureWord> words = PictureWordsOf(
      Line("10\t10\t4\t30", "|") + Line("50\t10\t100\t30", "|101") + Line("200\t10\t9\t3", "__"),
      1000, 500);
  ASSERT_EQ(words.size(), 1u);
  EXPECT_EQ(words[0].text, "101");
  EXPECT_EQ(words[0].box.left, 75);
  EXPECT_EQ(words[0].box.right, 150);
}

// Capitals, small letters, one that hangs down, and a dash: one size, one base line.
TEST(PictureWords, WordsOfALineStandOnOneBaseLine) {
  const std::vector<PictureWord> words =
      PictureWordsOf(Line("0\t100\t90\t30", "LOBBY") + Line("200\t109\t90\t21", "more") +
                         Line("400\t100\t90\t38", "Egypt") + Line("600\t115\t20\t4", "-"),
                     1000, 500);
  const std::vector<TextPiece> pieces = PiecesOf(words, {10, 20}, 300 / 72.0);
  ASSERT_EQ(pieces.size(), 4u);
  EXPECT_NEAR(pieces[0].places.front().start.x, 10, 0.01);
  for (const TextPiece& piece : pieces) {
    EXPECT_NEAR(piece.size, 10, 0.2);
    EXPECT_EQ(piece.size, pieces.front().size);
    EXPECT_NEAR(piece.places.front().start.y, 20 + 31.2, 0.5) << piece.text.toStdString();
    EXPECT_EQ(piece.places.size(), size_t(piece.text.size()));
  }
  EXPECT_EQ(WordsOf(pieces).size(), 4u);
}

}  // namespace
}  // namespace tamo
