#include "plans/printedscale.h"

#include <gtest/gtest.h>

#include "engine/mupdfcontentreader.h"
#include "plans/makepdf.h"
#include "support/memoryreader.h"

namespace tamo::test {
namespace {

TEST(PrintedScales, AreReadInTheirCommonForms) {
  const std::tuple<const char*, double, const char*, const char*> forms[] = {
      {"SCALE: 1/8\" = 1'-0\"", 8, "1/8", "1"},
      {"Scale 1/4\"=1'-0\"", 4, "1/4", "1"},
      {"1/4\" = 1'", 4, "1/4", "1"},
      {"SCALE: 1 1/2\" = 1'-0\"", 1 / 1.5, "1 1/2", "1"},
      {"1-1/2\" = 1'-0\"", 1 / 1.5, "1 1/2", "1"},
      {"3\" = 1'-0\"", 1 / 3.0, "3", "1"},
      {"SCALE: 3/32\u2033 = 1\u2032-0\u2033", 32 / 3.0, "3/32", "1"},
      {"1\" = 20'", 20, "1", "20"},
      {"1\" = 20'-0\"", 20, "1", "20"},
      {"1 IN = 50 FT", 50, "1", "50"},
      {"FLOOR PLAN   SCALE: 1/8\" = 1'-0\"   NORTH", 8, "1/8", "1"},
      {"SCALE 1:96", 8, "1", "8"},
      {"SCALE: 1 : 48", 4, "1", "4"}};
  for (const auto& [text, feet, one, other] : forms) {
    const auto scale = ScaleOfText(QString::fromUtf8(text));
    ASSERT_TRUE(scale.has_value()) << text;
    EXPECT_FALSE(scale->notToScale);
    EXPECT_NEAR(scale->feetPerInch, feet, 1e-9) << text;
    EXPECT_EQ(scale->scale1, one) << text;
    EXPECT_EQ(scale->scale2, other) << text;
  }
}

TEST(PrintedScales, NotToScale) {
  for (const char* text : {"NOT TO SCALE", "Scale: N.T.S.", "SCALE: NTS", "DETAIL - NTS"}) {
    const auto scale = ScaleOfText(text);
    ASSERT_TRUE(scale.has_value()) << text;
    EXPECT_TRUE(scale->notToScale);
  }
}

TEST(PrintedScales, WhatIsNoScaleIsNone) {
  for (const char* text : {"", "SCALE: AS NOTED", "SCALE AS SHOWN", "RATIO 1:100", "12'-6\"",
                           "CENTS", "SLOPE 1/4\" PER FOOT", "1/4\" = ", "0\" = 1'",
                           "1/0\" = 1'-0\"", "SCALE 1:0", "THE SCALES"})
    EXPECT_FALSE(ScaleOfText(text).has_value()) << text;
  EXPECT_FALSE(ScaleOfText(QString(100000, QLatin1Char('1'))).has_value());
}

PageContent Read(const QByteArray& content) {
  PdfOptions options;
  options.more = {"<</Type/Font/Subtype/Type1/BaseFont/Helvetica/Encoding/WinAnsiEncoding>>"};
  const QByteArray page = "/MediaBox[0 0 612 792]/Resources<</Font<</F1 5 0 R>>>>";
  return ReadPageContent(std::make_shared<MemoryReader>(MakePdf({{page, content}}, options)), 1);
}

// A title block writes its scale in as many pieces as it likes.
TEST(PrintedScales, ArePutTogetherFromPieces) {
  const PageContent page = Read(
      "BT /F1 10 Tf 1 0 0 1 400 50 Tm (SCALE:) Tj ET BT /F1 10 Tf 1 0 0 1 445 50 Tm (1/8\") Tj ET "
      "BT /F1 10 Tf 1 0 0 1 468 50 Tm (= 1'-0\") Tj ET "
      "BT /F1 10 Tf 1 0 0 1 468 50 Tm (= 1'-0\") Tj ET "
      "BT /F1 10 Tf 1 0 0 1 100 50 Tm (A far away note) Tj ET "
      "BT /F1 8 Tf 0 1 -1 0 590 300 Tm (NOT TO SCALE) Tj ET");
  std::vector<PrintedScale> scales = ScalesOf(page);
  ASSERT_EQ(scales.size(), 2U);
  if (scales[0].notToScale) std::swap(scales[0], scales[1]);
  EXPECT_EQ(scales[0].scale1, "1/8");
  EXPECT_NEAR(scales[0].at.y, 738, 8);
  EXPECT_TRUE(scales[1].notToScale);
  bool apart = false;
  for (const PageTextLine& line : TextLinesOf(page))
    apart = apart || line.text == "A far away note";
  EXPECT_TRUE(apart) << "columns are lines of their own";
}

TEST(PrintedScales, APageOfAHundredThousandPiecesIsReadAtOnce) {
  PageContent page;
  for (int i = 0; i < 100000; ++i) {
    TextPiece piece;
    piece.text = QStringLiteral("note");
    piece.size = 8;
    const double x = i % 300 * 40;
    const double y = i / 300 * 10;
    piece.places = {{{x, y}, {x + 20, y}, {x, y - 8, x + 20, y}}};
    piece.box = {x, y - 8, x + 20, y};
    page.texts.push_back(piece);
  }
  EXPECT_TRUE(ScalesOf(page).empty());
  EXPECT_EQ(TextLinesOf(page).size(), 100000U);
}

}  // namespace
}  // namespace tamo::test
