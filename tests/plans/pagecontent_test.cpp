#include "plans/pagecontent.h"
#include "engine/mupdfcontentreader.h"

#include <gtest/gtest.h>

#include <cmath>

#include "plans/makepdf.h"
#include "support/memoryreader.h"

using namespace tamo;
using namespace tamo::test;

namespace {

constexpr char kFonts[] =
    "/Resources<</Font<</F1<</Type/Font/Subtype/Type1/BaseFont/Helvetica>>"
    "/F2<</Type/Font/Subtype/Type1/BaseFont/Courier-BoldOblique>>>>>>";
constexpr char kLetterPage[] = "/MediaBox[0 0 612 792]";

PageContent ContentOf(const QByteArray& pdf, int page = 1, const QByteArray& password = {}) {
  return ReadPageContent(std::make_shared<MemoryReader>(pdf), page, password);
}

// The content of one page that draws `content`.
PageContent Drawn(const QByteArray& content, const QByteArray& entries = kLetterPage,
                  const QList<QByteArray>& more = {}) {
  return ContentOf(MakePdf({{entries + kFonts, content}}, {false, more}));
}

const TextPiece& Only(const PageContent& content) {
  EXPECT_EQ(content.texts.size(), 1U);
  static const TextPiece none;
  return content.texts.empty() ? none : content.texts[0];
}

void ExpectPoint(PagePoint at, double x, double y) {
  EXPECT_NEAR(at.x, x, 0.01);
  EXPECT_NEAR(at.y, y, 0.01);
}

void ExpectBox(const PageBox& box, double left, double top, double right, double bottom) {
  EXPECT_NEAR(box.left, left, 0.01);
  EXPECT_NEAR(box.top, top, 0.01);
  EXPECT_NEAR(box.right, right, 0.01);
  EXPECT_NEAR(box.bottom, bottom, 0.01);
}

constexpr char kHello[] = "BT /F1 12 Tf 100 700 Td (Hi A) Tj ET";

}  // namespace

TEST(PageContentText, EachLetterStandsWhereItIsDrawn) {
  const PageContent content = Drawn(kHello);
  EXPECT_EQ(content.error, 0);
  EXPECT_TRUE(content.whole) << content.problem.toStdString();
  EXPECT_DOUBLE_EQ(content.size.width, 612);
  const TextPiece& piece = Only(content);
  EXPECT_EQ(piece.text, "Hi A");
  ASSERT_EQ(piece.places.size(), 4U);
  // Helvetica: H 722, i 222, blank 278, A 667 thousandths.
  ExpectPoint(piece.places[0].start, 100, 92);
  ExpectPoint(piece.places[1].start, 100 + 12 * 0.722, 92);
  ExpectPoint(piece.places[3].start, 100 + 12 * 1.222, 92);
  ExpectPoint(piece.places[3].end, 100 + 12 * 1.889, 92);
  EXPECT_NEAR(piece.size, 12, 0.01);
  EXPECT_NEAR(piece.dx, 1, 1e-6);
  EXPECT_NEAR(piece.dy, 0, 1e-6);
  EXPECT_LT(piece.box.top, 92 - 12 * 0.7);
  EXPECT_GT(piece.box.bottom, 92);
  EXPECT_FALSE(piece.hidden);
  EXPECT_FALSE(piece.clipped);
  EXPECT_FALSE(piece.bold);
}

TEST(PageContentText, FontAndColourAreTold) {
  const PageContent content =
      Drawn("1 0 0 rg BT /F2 9 Tf 10 10 Td (A) Tj ET BT 0 g 0.5 g /F1 9 Tf 10 30 Td (B) Tj ET");
  ASSERT_EQ(content.texts.size(), 2U);
  EXPECT_EQ(content.texts[0].font, "Courier-BoldOblique");
  EXPECT_TRUE(content.texts[0].bold);
  EXPECT_TRUE(content.texts[0].italic);
  EXPECT_TRUE(content.texts[0].fixedPitch);
  EXPECT_EQ(content.texts[0].colour, 0xff0000U);
  EXPECT_FALSE(content.texts[1].fixedPitch);
  EXPECT_EQ(content.texts[1].colour & 0xf0, 0x80U);
}

// Where the text of (100, 700) stands, and which way it reads, on each kind of page.
TEST(PageContentText, PlacesAreThoseOfThePageAsItIsLookedAt) {
  struct Kind {
    const char* entries;
    double x, y, dx, dy, size, width;
  };
  const Kind kinds[] = {
      {"/MediaBox[0 0 612 792]/Rotate 90", 700, 100, 0, 1, 12, 792},
      {"/MediaBox[0 0 612 792]/Rotate 180", 512, 700, -1, 0, 12, 612},
      {"/MediaBox[0 0 612 792]/Rotate 270", 92, 512, 0, -1, 12, 792},
      {"/MediaBox[0 0 612 792]/CropBox[50 600 400 750]", 50, 50, 1, 0, 12, 350},
      {"/MediaBox[-20 -30 612 792]", 120, 92, 1, 0, 12, 632},
      {"/MediaBox[0 0 612 792]/UserUnit 2", 200, 184, 1, 0, 24, 1224},
      {"/MediaBox[0 0 612 792]/CropBox[50 600 400 750]/UserUnit 2/Rotate 90", 200, 100, 0, 1, 24,
       300},
  };
  for (const Kind& kind : kinds) {
    const PageContent content = Drawn(kHello, kind.entries);
    EXPECT_NEAR(content.size.width, kind.width, 0.01) << kind.entries;
    const TextPiece& piece = Only(content);
    ASSERT_EQ(piece.text, "Hi A") << kind.entries;
    ExpectPoint(piece.places[0].start, kind.x, kind.y);
    EXPECT_NEAR(piece.dx, kind.dx, 1e-6) << kind.entries;
    EXPECT_NEAR(piece.dy, kind.dy, 1e-6) << kind.entries;
    EXPECT_NEAR(piece.size, kind.size, 0.01) << kind.entries;
  }
}

TEST(PageContentText, AFormPutsItsTextWhereItIsPlaced) {
  const QByteArray body = "BT /F1 10 Tf 5 5 Td (In) Tj ET";
  const QByteArray form =
      QByteArray("<</Type/XObject/Subtype/Form/BBox[0 0 200 200]/Matrix[0 1 -1 0 0 0]") + kFonts +
      "/Length " + QByteArray::number(body.size()) + ">>\nstream\n" + body + "\nendstream";
  const PageContent content =
      ContentOf(MakePdf({{"/MediaBox[0 0 612 792]/Resources<</XObject<</Fm 5 0 R>>>>",
                          "q 2 0 0 2 300 400 cm /Fm Do Q"}},
                        {false, {form}}));
  const TextPiece& piece = Only(content);
  EXPECT_EQ(piece.text, "In");
  ExpectPoint(piece.places[0].start, 300 - 10, 792 - 410);
  EXPECT_NEAR(piece.dy, -1, 1e-6);
  EXPECT_NEAR(piece.size, 20, 0.01);
}

TEST(PageContentText, AGapBeginsANewPieceAndKerningDoesNot) {
  const PageContent content =
      Drawn("BT /F1 10 Tf 50 50 Td [(A) 80 (V) -300 (W) -900 (X)] TJ 0 -20 Td (Y) Tj ET");
  QStringList texts;
  for (const TextPiece& piece : content.texts) texts.push_back(piece.text);
  EXPECT_EQ(texts, (QStringList{"AVW", "X", "Y"}));
}

TEST(PageContentText, TextDrawnTwiceIsThereTwiceAndTextWithAnOutlineOnce) {
  EXPECT_EQ(Drawn("BT /F1 9 Tf 50 50 Td (A) Tj ET BT /F1 9 Tf 50.2 50 Td (A) Tj ET").texts.size(),
            2U);
  EXPECT_EQ(Drawn("BT 2 Tr /F1 9 Tf 50 50 Td (A) Tj ET").texts.size(), 1U);
  EXPECT_EQ(Drawn("BT 1 Tr /F1 9 Tf 50 50 Td (A) Tj ET").texts.size(), 1U);
  EXPECT_EQ(Drawn("q BT 6 Tr /F1 9 Tf 50 50 Td (A) Tj ET Q").texts.size(), 1U);
  EXPECT_EQ(Drawn("q BT 7 Tr /F1 9 Tf 50 50 Td (A) Tj ET Q").texts.size(), 1U);
}

TEST(PageContentText, HiddenAndClippedTextSaysSo) {
  EXPECT_TRUE(Only(Drawn("BT 3 Tr /F1 9 Tf 50 50 Td (A) Tj ET")).hidden);
  EXPECT_TRUE(Only(Drawn("BT /F1 9 Tf 700 50 Td (A) Tj ET")).clipped);
  const PageContent content = Drawn(
      "q 0 0 100 100 re W n BT /F1 9 Tf 50 50 Td (In) Tj ET BT /F1 9 Tf 150 50 Td (Out) Tj ET Q "
      "BT /F1 9 Tf 150 50 Td (After) Tj ET");
  ASSERT_EQ(content.texts.size(), 3U);
  EXPECT_FALSE(content.texts[0].clipped);
  EXPECT_TRUE(content.texts[1].clipped);
  EXPECT_FALSE(content.texts[2].clipped);
}

TEST(PageContentText, OneLetterShapeMayStandForSeveralLettersOrNone) {
  const QByteArray map =
      "/CIDInit /ProcSet findresource begin begincmap 1 begincodespacerange <00> <ff> "
      "endcodespacerange 2 beginbfchar <41> <006600660069> <42> <0000> endbfchar endcmap end";
  const QByteArray font = "<</Type/Font/Subtype/Type1/BaseFont/Helvetica/ToUnicode 6 0 R>>";
  const QByteArray stream =
      "<</Length " + QByteArray::number(map.size()) + ">>\nstream\n" + map + "\nendstream";
  const PageContent content =
      ContentOf(MakePdf({{"/MediaBox[0 0 612 792]/Resources<</Font<</F1 5 0 R>>>>",
                          "BT /F1 10 Tf 100 100 Td (ABC) Tj ET"}},
                        {false, {font, stream}}));
  const TextPiece& piece = Only(content);
  ASSERT_EQ(piece.text.left(3), "ffi");
  ASSERT_EQ(piece.places.size(), static_cast<size_t>(piece.text.size()));
  EXPECT_EQ(piece.text[3], QChar(0xfffd));
  EXPECT_EQ(piece.text[4], QLatin1Char('C'));
  ExpectPoint(piece.places[1].start, 100 + 10 * 0.667 / 3, 692);
  ExpectPoint(piece.places[3].start, 100 + 10 * 0.667, 692);
}

// --- Paths

TEST(PageContentPaths, LinesHaveTheirPlaceWidthAndColour) {
  const PageContent content = Drawn(
      "q 2 0 0 2 0 0 cm 1.5 w 0 0 1 RG [3 2] 0 d 50 100 m 150 100 l S Q "
      "0 1 0 0 K 10 10 m 10 60 l S");
  ASSERT_EQ(content.paths.size(), 2U);
  const PathPiece& line = content.paths[0];
  EXPECT_EQ(line.kind, PathPiece::Kind::Stroke);
  EXPECT_NEAR(line.width, 3, 1e-3);
  EXPECT_TRUE(line.dashed);
  EXPECT_EQ(line.colour, 0x0000ffU);
  const std::vector<PageLine> lines = Flattened(line);
  ASSERT_EQ(lines.size(), 1U);
  ExpectPoint(lines[0].from, 100, 592);
  ExpectPoint(lines[0].to, 300, 592);
  EXPECT_FALSE(content.paths[1].dashed);
}

TEST(PageContentPaths, RectanglesAreRecognisedOnTurnedPagesToo) {
  for (const char* turn : {"", "/Rotate 90", "/Rotate 180", "/Rotate 270"}) {
    const PageContent content =
        Drawn("10 20 30 40 re 100 20 1 40 re f 10 10 m 20 30 l 30 10 l h f 5 5 m 9 5 l S",
              QByteArray(kLetterPage) + turn);
    ASSERT_EQ(content.paths.size(), 3U) << turn;
    EXPECT_EQ(RectanglesOf(content.paths[0]).size(), 2U) << turn;
    EXPECT_TRUE(RectanglesOf(content.paths[1]).empty()) << turn;
    EXPECT_TRUE(RectanglesOf(content.paths[2]).empty()) << turn;
  }
  ExpectBox(RectanglesOf(Drawn("10 20 30 40 re S").paths[0])[0], 10, 732, 40, 772);
  // Drawn by hand, and left open but for the filling.
  EXPECT_EQ(RectanglesOf(Drawn("0 0 m 0 9 l 5 9 l 9 9 l 9 0 l f").paths[0]).size(), 1U);
  EXPECT_TRUE(RectanglesOf(Drawn("0 0 m 0 9 l 9 9 l 9 0 l S").paths[0]).empty());
}

TEST(PageContentPaths, AClipCutsLinesAndLeavesOutWhatIsOutside) {
  const PageContent content =
      Drawn("q 100 100 50 50 re W n 0 120 m 500 120 l S 0 200 m 500 200 l S Q 0 200 m 500 200 l S");
  ASSERT_EQ(content.paths.size(), 2U);
  const std::vector<PageLine> lines = Flattened(content.paths[0]);
  ASSERT_EQ(lines.size(), 1U);
  ExpectPoint(lines[0].from, 100, 672);
  ExpectPoint(lines[0].to, 150, 672);
  EXPECT_EQ(Flattened(content.paths[1]).size(), 1U);
}

TEST(PageContentPaths, ACurveBecomesLinesWithinTheTolerance) {
  // A circle of radius 100 around (200, 200).
  const PageContent content = Drawn(
      "300 200 m 300 255.228 255.228 300 200 300 c 144.772 300 100 255.228 100 200 c "
      "100 144.772 144.772 100 200 100 c 255.228 100 300 144.772 300 200 c S");
  ASSERT_EQ(content.paths.size(), 1U);
  for (const double tolerance : {2.0, 0.1, 0.01}) {
    const std::vector<PageLine> lines = Flattened(content.paths[0], tolerance);
    ASSERT_GT(lines.size(), 8U);
    for (const PageLine& line : lines) {
      const PagePoint middle = {(line.from.x + line.to.x) / 2, (line.from.y + line.to.y) / 2};
      EXPECT_NEAR(Distance(middle, {200, 592}), 100, tolerance + 0.03);
    }
  }
  EXPECT_LT(Flattened(content.paths[0], 2).size(), Flattened(content.paths[0], 0.01).size());
}

// --- Pictures and the rest

TEST(PageContentPictures, PicturesAndPatternsAreBoxes) {
  const QByteArray image =
      "<</Type/XObject/Subtype/Image/Width 2/Height 3/BitsPerComponent 8/ColorSpace/DeviceGray"
      "/Length 6>>\nstream\nabcdef\nendstream";
  const QByteArray cell =
      "<</Type/Pattern/PatternType 1/PaintType 1/TilingType 1/BBox[0 0 9 9]/XStep 9/YStep 9"
      "/Resources<<>>/Length 14>>\nstream\n0 0 m 9 9 l S \nendstream";
  const PageContent content = ContentOf(
      MakePdf({{"/MediaBox[0 0 612 792]/Resources<</XObject<</Im 5 0 R>>/Pattern<</P 6 0 R>>>>",
                "q 40 0 0 60 100 200 cm /Im Do Q /Pattern cs /P scn 300 300 90 90 re f"}},
              {false, {image, cell}}));
  ASSERT_EQ(content.pictures.size(), 2U);
  EXPECT_EQ(content.pictures[0].kind, PicturePiece::Kind::Picture);
  EXPECT_EQ(content.pictures[0].width, 2);
  EXPECT_EQ(content.pictures[0].height, 3);
  ExpectBox(content.pictures[0].box, 100, 532, 140, 592);
  EXPECT_EQ(content.pictures[1].kind, PicturePiece::Kind::Pattern);
  ExpectBox(content.pictures[1].box, 300, 402, 390, 492);
  EXPECT_TRUE(content.paths.empty());
}

TEST(PageContentReading, OwnMarksAreLeftOutAndNotesOfOthersAreNot) {
  const QByteArray look = QByteArray("<</Type/XObject/Subtype/Form/BBox[0 0 50 50]") + kFonts +
                          "/Length 32>>\nstream\nBT /F1 9 Tf 5 5 Td (Note) Tj ET  \nendstream";
  const auto note = [](const char* name) {
    return QByteArray("<</Type/Annot/Subtype/Line/L[0 0 50 50]/Rect[0 0 50 50]/F 4/NM(") + name +
           ")/AP<</N 5 0 R>>>>";
  };
  const PageContent content =
      ContentOf(MakePdf({{"/MediaBox[0 0 612 792]/Annots[6 0 R 7 0 R]", ""}},
                        {false, {look, note("tamo-000001-0a0b0c0d"), note("other")}}));
  EXPECT_EQ(Only(content).text, "Note");
}

TEST(PageContentReading, WhatCantBeReadSaysWhy) {
  const QByteArray good = MakePdf({{kLetterPage}});
  EXPECT_EQ(ContentOf(good, 2).error, 57);
  EXPECT_EQ(ContentOf(good, 0).error, 57);
  EXPECT_FALSE(ContentOf(good, 2).problem.isEmpty());
  EXPECT_EQ(ContentOf("no pdf").error, 57);
  RealDisk disk;
  EXPECT_EQ(ReadPageContent(disk, "/nowhere/at/all.pdf", 1).error, 76);
  const PageContent damaged = Drawn("BT /F1 9 Tf 50 50 Td (A) Tj ET q /Missing Do");
  EXPECT_EQ(damaged.texts.size(), 1U);
  EXPECT_FALSE(damaged.whole);
  EXPECT_FALSE(damaged.problem.isEmpty());
}

TEST(PageContentReading, ACancelledReadingComesBackAtOnce) {
  const std::atomic<bool> cancel = true;
  const PageContent content = ReadPageContent(
      std::make_shared<MemoryReader>(MakePdf({{kLetterPage}})), 1, QByteArray(), &cancel);
  EXPECT_FALSE(content.whole);
  EXPECT_TRUE(content.paths.empty());
}
