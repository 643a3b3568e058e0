#include "plans/pdfdraw.h"

#include <cmath>

#include "common/failure.h"
#include "plans/planfixture.h"

using namespace tamo;
using namespace tamo::test;

namespace {

struct RealPlan : PlanFixture {};

constexpr char kLetter[] = "/MediaBox[0 0 612 792]";

}  // namespace

TEST_F(RealPlan, OpensPagesAndTellsTheirSizes) {
  const QString path =
      Write("set.pdf", MakePdf({{kLetter},
                                {"/MediaBox[0 0 2592 1728]"},
                                {"/MediaBox[0 0 612.5 792.25]/Rotate 90"},
                                {"/MediaBox[0 0 612 792]/UserUnit 2"},
                                {"/MediaBox[0 0 612 792]/CropBox[100 100 400 300]"}}));
  ASSERT_EQ(draw->OpenFile(path, ""), 0);
  EXPECT_EQ(draw->PageCount(), 5);
  EXPECT_EQ(draw->ShownFile(), "set.pdf");
  EXPECT_DOUBLE_EQ(draw->SizeOfPage(2).width, 2592);
  EXPECT_DOUBLE_EQ(draw->SizeOfPage(3).width, 792.25);
  EXPECT_DOUBLE_EQ(draw->SizeOfPage(3).height, 612.5);
  EXPECT_DOUBLE_EQ(draw->SizeOfPage(4).width, 1224);
  EXPECT_DOUBLE_EQ(draw->SizeOfPage(5).width, 300);
  EXPECT_DOUBLE_EQ(draw->SizeOfPage(5).height, 200);
}

TEST_F(RealPlan, LengthsAreTrueOnEveryKindOfPageAtEveryZoom) {
  const QList<PdfPage> pages = {{kLetter},
                                {"/MediaBox[0 0 612 792]/Rotate 90"},
                                {"/MediaBox[0 0 612 792]/Rotate 180"},
                                {"/MediaBox[0 0 612 792]/Rotate 270"},
                                {"/MediaBox[0 0 612 792]/CropBox[50.5 60.25 500 700]"},
                                {"/MediaBox[-100 -50 612 792]/CropBox[0 0 612 792]/Rotate 90"},
                                {"/MediaBox[0 0 306 396]/UserUnit 2"},
                                {"/MediaBox[0 0 841.89 1190.551]/Rotate 270/UserUnit 1.5"}};
  ASSERT_EQ(draw->OpenFile(Write("p.pdf", MakePdf(pages)), ""), 0);
  QList<double> lengths;
  draw->onLineMeasured = [&](double& length, QString& label) {
    lengths.push_back(length);
    length /= 0.25;
    label = "feet @ 1/4\"=1'";
  };
  for (int page = 1; page <= pages.size(); ++page) {
    draw->SetPage(page);
    for (const int zoom : {40, 100, 400}) {
      draw->SetZoom(zoom);
      draw->DrawLine({100, 100}, {100 + 108, 100 + 144});  // 3 by 4 units of 36: 180 points
      EXPECT_DOUBLE_EQ(lengths.back(), 2.5);
      EXPECT_EQ(draw->Marks()[0].label, "10.0 feet @ 1/4\"=1'");
    }
  }
  // What stands in the file is as true as what was drawn.
  const QString marked = Path("p-Marked.pdf");
  ASSERT_EQ(draw->SaveAs(marked), 0) << draw->Problem().toStdString();
  Reopen(marked);
  ASSERT_EQ(draw->Marks().size(), size_t(3 * pages.size()));
  for (const Mark& mark : draw->Marks()) {
    EXPECT_NEAR(Distance(mark.points[0], mark.points[1]), 180, 0.001) << "page " << mark.page;
    EXPECT_NEAR(mark.points[0].x, 100, 0.001) << "page " << mark.page;
    EXPECT_NEAR(mark.points[0].y, 100, 0.001) << "page " << mark.page;
    EXPECT_NEAR(mark.width, 0.75, 0.001);
  }
  ExpectValid(marked);
}

TEST_F(RealPlan, AMarkComesBackAsItWasDrawn) {
  ASSERT_EQ(draw->OpenFile(Write("a.pdf", MakePdf({{kLetter}, {kLetter}})), ""), 0);
  draw->SetMarkColour("255128000");
  draw->SetMarkWidth(2.25);
  draw->onLineMeasured = [](double& length, QString& label) {
    length = 1500;
    label = "feet @ 1mm:50 feet (\u2205)";
  };
  draw->SetPage(2);
  draw->DrawLine({72, 72}, {72, 300});
  draw->SetMarkColour("000000255");
  draw->PlaceCircle({200, 220});
  ASSERT_EQ(draw->SaveAs(Path("a-Marked.pdf")), 0);
  Reopen(Path("a-Marked.pdf"));
  const std::vector<Mark> marks = draw->Marks();
  ASSERT_EQ(marks.size(), 2U);
  EXPECT_EQ(marks[0].kind, Mark::Kind::Circle);
  EXPECT_EQ(marks[0].colour, "000000255");
  EXPECT_NEAR(marks[0].points[0].x, 200, 0.001);
  EXPECT_NEAR(marks[0].points[0].y, 220, 0.001);
  EXPECT_EQ(marks[1].kind, Mark::Kind::Line);
  EXPECT_EQ(marks[1].page, 2);
  EXPECT_EQ(marks[1].colour, "255128000");
  EXPECT_NEAR(marks[1].width, 2.25, 0.001);
  EXPECT_EQ(marks[1].label, "1,500.0 feet @ 1mm:50 feet (\u2205)");
}

TEST_F(RealPlan, OtherProgramsShowAMarkAndNoLongerWhenItIsRemoved) {
  for (const char* page : {"/MediaBox[0 0 612 792]", "/MediaBox[0 0 612 792]/Rotate 90",
                           "/MediaBox[50 60 662 852]/CropBox[60 70 600 800]/Rotate 270"}) {
    draw = std::make_unique<PdfDraw>(files, engine);
    ASSERT_EQ(draw->OpenFile(Write("a.pdf", MakePdf({{page, "q Q"}})), ""), 0);
    const QString marked = Path("a-Marked.pdf");
    draw->SetMarkColour("255000000");
    draw->SetMarkWidth(3);
    draw->DrawLine({100, 150}, {300, 150});
    draw->PlaceCircle({200, 300});
    ASSERT_EQ(draw->SaveAs(marked), 0);
    ExpectValid(marked);
    int width = 0;
    int height = 0;
    QByteArray pixels = Painted(marked, 1, width, height);
    if (pixels.isEmpty()) GTEST_SKIP() << "pdftoppm is not here";
    const double circle = 13.5 / 2;
    EXPECT_TRUE(RedNear(pixels, width, height, {150, 150})) << page;
    EXPECT_TRUE(RedNear(pixels, width, height, {290, 150})) << page;
    EXPECT_TRUE(RedNear(pixels, width, height, {200 + circle, 300})) << page;
    EXPECT_FALSE(RedNear(pixels, width, height, {400, 150})) << page;

    draw->DeleteMark(0);
    draw->DeleteMark(0);
    ASSERT_EQ(draw->SaveAs(marked), 0);
    ExpectValid(marked);
    pixels = Painted(marked, 1, width, height);
    EXPECT_FALSE(RedNear(pixels, width, height, {150, 150})) << page;
    EXPECT_FALSE(RedNear(pixels, width, height, {200 + circle, 300})) << page;
  }
}

TEST_F(RealPlan, GhostscriptReadsAMarkedPlan) {
  ASSERT_EQ(draw->OpenFile(Write("a.pdf", MakePdf({{kLetter}})), ""), 0);
  draw->DrawLine({100, 150}, {300, 150});
  ASSERT_EQ(draw->SaveAs(Path("a-Marked.pdf")), 0);
  const Ran ran = Run("gs", {"-dBATCH", "-dNOPAUSE", "-dPDFSTOPONERROR", "-sDEVICE=nullpage",
                             Path("a-Marked.pdf")});
  if (!ran.present) GTEST_SKIP() << "gs is not here";
  EXPECT_EQ(ran.exit, 0) << ran.output.toStdString();
}

TEST_F(RealPlan, OurMarksAreLeftOutOfThePicturesAndOthersAreNot) {
  // A square of another program, with its own picture, beside a line of ours.
  PdfOptions options;
  options.more = {
      "<</Type/Annot/Subtype/Square/Rect[400 600 500 700]/C[1 0 0]/F 4/NM(other-1)"
      "/BS<</W 4>>/AP<</N 6 0 R>>>>",
      "<</Type/XObject/Subtype/Form/BBox[400 600 500 700]/Length 34>>\nstream\n"
      "1 0 0 rg 400 600 100 100 re f     \nendstream"};
  const QByteArray plan = MakePdf({{"/MediaBox[0 0 612 792]/Annots[5 0 R]", "q Q"}}, options);
  ASSERT_EQ(draw->OpenFile(Write("a.pdf", plan), ""), 0);
  EXPECT_TRUE(draw->Marks().empty());
  draw->SetMarkWidth(4);
  draw->DrawLine({100, 150}, {300, 150});
  ASSERT_EQ(draw->SaveAs(Path("a-Marked.pdf")), 0);
  Reopen(Path("a-Marked.pdf"));
  EXPECT_EQ(draw->Marks().size(), 1U);

  PlanView view;
  view.width = 612;
  view.height = 792;
  draw->Pictures().Look(view);
  ASSERT_TRUE(draw->Pictures().WaitUntilSharp(20000));
  bool other = false;
  bool ours = false;
  for (const PlacedPicture& placed : draw->Pictures().PicturesFor(view)) {
    if (placed.picture->width != int(placed.width)) continue;  // the coarse one
    const auto at = [&](int x, int y) {
      return placed.picture->pixels[size_t(y) * size_t(placed.picture->width) + size_t(x)];
    };
    other = at(450, 142) == 0xffff0000U;
    ours = at(200, 150) != 0xffffffffU;
  }
  EXPECT_TRUE(other);
  EXPECT_FALSE(ours);

  draw->DeleteMark(0);
  ASSERT_EQ(draw->SaveAs(Path("a-Marked.pdf")), 0);
  const QByteArray saved = Read(Path("a-Marked.pdf"));
  EXPECT_TRUE(saved.mid(saved.lastIndexOf("%TamoMarks")).contains("/Annots[5 0 R]"));
}

TEST_F(RealPlan, AMarkThatWasSavedIsListedAndDeletableAfterReopening) {
  ASSERT_EQ(draw->OpenFile(Write("a.pdf", MakePdf({{kLetter}})), ""), 0);
  const QString marked = Path("a-Marked.pdf");
  draw->DrawLine({100, 100}, {200, 100});
  ASSERT_EQ(draw->SaveAs(marked), 0);
  draw->DrawLine({100, 200}, {200, 200});
  ASSERT_EQ(draw->SaveAs(marked), 0);
  Reopen(marked);
  ASSERT_EQ(draw->Marks().size(), 2U);
  EXPECT_NEAR(draw->Marks()[0].points[0].y, 200, 0.001);
  draw->DeleteMark(0);
  ASSERT_EQ(draw->SaveAs(marked), 0);
  Reopen(marked);
  ASSERT_EQ(draw->Marks().size(), 1U);
  EXPECT_NEAR(draw->Marks()[0].points[0].y, 100, 0.001);
  draw->DrawLine({100, 300}, {200, 300});
  EXPECT_GT(MarkNumber(draw->Marks()[0].name), MarkNumber(draw->Marks()[1].name));
  EXPECT_TRUE(draw->Undo());
  EXPECT_EQ(draw->SaveAs(marked), 0);
  ExpectValid(marked);
}

TEST_F(RealPlan, UnicodePathsAreOpenedAndSaved) {
  const QString plan =
      Write(QString::fromUtf8("Gründung – Étage 2 план.PDF"), MakePdf({{kLetter}}));
  ASSERT_EQ(draw->OpenFile(plan, ""), 0);
  draw->DrawLine({100, 100}, {200, 100});
  const QString marked = Path(QString::fromUtf8("Gründung – Étage 2 план-Marked.pdf"));
  ASSERT_EQ(draw->SaveAs(marked), 0);
  EXPECT_EQ(draw->ShownPath(), marked);
  Reopen(marked);
  EXPECT_EQ(draw->Marks().size(), 1U);
}

TEST_F(RealPlan, CrossReferenceStreamsGetAdditionsOfTheirKind) {
  PdfOptions options;
  options.xrefStream = true;
  ASSERT_EQ(draw->OpenFile(Write("a.pdf", MakePdf({{kLetter}, {kLetter}}, options)), ""), 0);
  const QString marked = Path("a-Marked.pdf");
  for (int page : {1, 2, 1}) {
    draw->SetPage(page);
    draw->DrawLine({100, 100}, {200, 100});
    ASSERT_EQ(draw->SaveAs(marked), 0) << draw->Problem().toStdString();
    ExpectValid(marked);
  }
  EXPECT_FALSE(Read(marked).contains("\nxref\n"));
  Reopen(marked);
  EXPECT_EQ(draw->Marks().size(), 3U);
}

TEST_F(RealPlan, AnEncryptedPlanWithoutAPasswordHoldsMarks) {
  Write("plain.pdf", MakePdf({{kLetter}}));
  for (const char* bits : {"40", "128", "256"}) {
    const QString path = Path(QString("e%1.pdf").arg(bits));
    QStringList arguments = {"--encrypt", "", "owner", bits, "--", Path("plain.pdf"), path};
    if (QByteArray(bits) != "256") arguments.prepend("--allow-weak-crypto");
    const Ran ran = Run("qpdf", arguments);
    if (!ran.present) GTEST_SKIP() << "qpdf is not here";
    ASSERT_EQ(ran.exit, 0) << ran.output.toStdString();
    draw = std::make_unique<PdfDraw>(files, engine);
    ASSERT_EQ(draw->OpenFile(path, ""), 0) << draw->Problem().toStdString();
    draw->onLineMeasured = [](double& length, QString& label) {
      length = 10;
      label = "feet";
    };
    draw->SetMarkColour("255000000");
    draw->SetMarkWidth(3);
    draw->DrawLine({100, 150}, {300, 150});
    const QString marked = Path(QString("e%1-Marked.pdf").arg(bits));
    ASSERT_EQ(draw->SaveAs(marked), 0) << draw->Problem().toStdString();
    ExpectValid(marked);
    int width = 0;
    int height = 0;
    const QByteArray pixels = Painted(marked, 1, width, height);
    if (!pixels.isEmpty()) {
      EXPECT_TRUE(RedNear(pixels, width, height, {250, 150})) << bits;
    }
    Reopen(marked);
    ASSERT_EQ(draw->Marks().size(), 1U);
    EXPECT_EQ(draw->Marks()[0].label, "10.0 feet");
  }
}

TEST_F(RealPlan, APlanLockedWithAPasswordOpensWithItOnly) {
  Write("plain.pdf", MakePdf({{kLetter}}));
  const Ran ran = Run(
      "qpdf", {"--encrypt", "secret", "owner", "256", "--", Path("plain.pdf"), Path("locked.pdf")});
  if (!ran.present) GTEST_SKIP() << "qpdf is not here";
  EXPECT_EQ(draw->OpenFile(Path("locked.pdf"), ""), kFileOther);
  EXPECT_TRUE(draw->Problem().contains("password")) << draw->Problem().toStdString();
  EXPECT_EQ(draw->PageCount(), 1);
  EXPECT_EQ(draw->OpenFile(Path("locked.pdf"), "secret"), 0);
}

TEST_F(RealPlan, SlowOpeningComesBackWithABlankSheetAndKeepsThePageAskedFor) {
  ASSERT_TRUE(draw->OpenFile(Write("a.pdf", MakePdf({{kLetter}, {kLetter}, {kLetter}})), "") == 0);
  draw->Patience().Set(0);
  int pages = 0;
  draw->onPageChanged = [&] { ++pages; };
  ASSERT_EQ(draw->OpenFile(Path("a.pdf"), ""), 0);
  draw->SetPage(3);
  ASSERT_TRUE(draw->FinishOpening(10000));
  EXPECT_EQ(draw->PageCount(), 3);
  EXPECT_EQ(draw->Page(), 3);
  EXPECT_GE(pages, 2);
}

TEST_F(RealPlan, MissingFilesAndFoldersHaveTheirNumbers) {
  EXPECT_EQ(draw->OpenFile(Path("none.pdf"), ""), kFileNotFound);
  EXPECT_EQ(draw->OpenFile(Path("no/none.pdf"), ""), kPathNotFound);
  EXPECT_EQ(draw->OpenFile(folder.path(), ""), kNoAccess);
  EXPECT_EQ(draw->SaveAs(Path("x.pdf")), kFileNotFound);
  EXPECT_FALSE(QFileInfo::exists(Path("x.pdf")));
}

TEST_F(RealPlan, PicturesAreSharpOnEveryTurnAndAnyZoom) {
  // A black square in the corner at the top left of the page looked at.
  ASSERT_EQ(draw->OpenFile(Write("a.pdf", MakePdf({{kLetter, "0 742 50 50 re f"}})), ""), 0);
  struct Corner {
    int turn;
    double x, y;  // where the corner's middle is, in parts of the turned page
  };
  for (const double scale : {0.5, 2.0}) {
    for (const Corner& corner : {Corner{0, 25, 25}, Corner{90, 792 - 25, 25},
                                 Corner{180, 612 - 25, 792 - 25}, Corner{270, 25, 612 - 25}}) {
      PlanView view;
      view.pixelsPerPoint = scale;
      view.turn = corner.turn;
      view.width = int(800 * scale);
      view.height = int(800 * scale);
      draw->Pictures().Look(view);
      ASSERT_TRUE(draw->Pictures().WaitUntilSharp(20000));
      bool black = false;
      const int x = int(corner.x * scale);
      const int y = int(corner.y * scale);
      for (const PlacedPicture& placed : draw->Pictures().PicturesFor(view)) {
        const int px = x - int(placed.left);
        const int py = y - int(placed.top);
        if (placed.picture->width != int(placed.width)) continue;
        if (px < 0 || py < 0 || px >= placed.picture->width || py >= placed.picture->height)
          continue;
        black = placed.picture->pixels[size_t(py) * size_t(placed.picture->width) + size_t(px)] ==
                0xff000000U;
      }
      EXPECT_TRUE(black) << "turn " << corner.turn << " scale " << scale;
    }
  }
}

TEST_F(RealPlan, TheCoarsePictureStandsRightOnEveryTurn) {
  // A black square in the corner at the top left of the page.
  ASSERT_EQ(draw->OpenFile(Write("a.pdf", MakePdf({{kLetter, "0 742 50 50 re f"}})), ""), 0);
  PlanView view;
  view.pixelsPerPoint = 2;
  view.width = view.height = 1600;
  draw->Pictures().Look(view);
  ASSERT_TRUE(draw->Pictures().WaitForCoarse(20000));
  ASSERT_TRUE(draw->Pictures().WaitUntilSharp(20000));
  // At another scale nothing sharp is there yet.
  view.pixelsPerPoint = 3;
  struct Corner {
    int turn;
    double x, y;  // the middle of the square, in points of the turned page
  };
  for (const Corner& corner : {Corner{0, 25, 25}, Corner{90, 792 - 25, 25},
                               Corner{180, 612 - 25, 792 - 25}, Corner{270, 25, 612 - 25}}) {
    view.turn = corner.turn;
    const auto pictures = draw->Pictures().PicturesFor(view);
    ASSERT_EQ(pictures.size(), 2U) << corner.turn;
    int black = 0;
    double area = 0;
    for (const PlacedPicture& placed : pictures) {
      area += placed.width * placed.height;
      const double x = (corner.x * 3 - placed.left) / placed.width * placed.picture->width;
      const double y = (corner.y * 3 - placed.top) / placed.height * placed.picture->height;
      if (x < 0 || y < 0 || x >= placed.picture->width || y >= placed.picture->height) continue;
      black += placed.picture->pixels[size_t(y) * size_t(placed.picture->width) + size_t(x)] ==
                       0xff000000U
                   ? 1
                   : 0;
    }
    EXPECT_EQ(black, 1) << "turn " << corner.turn;
    EXPECT_NEAR(area, 612 * 3 * 792 * 3.0, 612 * 3 * 12) << "turn " << corner.turn;
  }
}

TEST(Picture, TurnsByQuarters) {
  // 1 2 3
  // 4 5 6
  const Picture picture{3, 2, {1, 2, 3, 4, 5, 6}};
  EXPECT_EQ(Turned(picture, 0).pixels, picture.pixels);
  EXPECT_EQ(Turned(picture, 90).pixels, (Pixels{4, 1, 5, 2, 6, 3}));
  EXPECT_EQ(Turned(picture, 90).width, 2);
  EXPECT_EQ(Turned(picture, 180).pixels, (Pixels{6, 5, 4, 3, 2, 1}));
  EXPECT_EQ(Turned(picture, 180).height, 2);
  EXPECT_EQ(Turned(picture, 270).pixels, (Pixels{3, 6, 2, 5, 1, 4}));
  EXPECT_EQ(Turned(picture, 270).height, 3);
}

TEST_F(RealPlan, HairlinesStayVisibleOnASmallPicture) {
  ASSERT_EQ(draw->OpenFile(Write("a.pdf", MakePdf({{"/MediaBox[0 0 3456 2592]",
                                                    "0 w 0 G 100 1296 m 3300 1296 l S"}})),
                           ""),
            0);
  PlanView view;
  view.pixelsPerPoint = 0.1;
  view.width = 346;
  view.height = 260;
  draw->Pictures().Look(view);
  ASSERT_TRUE(draw->Pictures().WaitUntilSharp(20000));
  const auto pictures = draw->Pictures().PicturesFor(view);
  ASSERT_FALSE(pictures.empty());
  const Picture& picture = *pictures.back().picture;
  unsigned darkest = 255;
  for (int y = 120; y < 140; ++y) {
    darkest = std::min(darkest, picture.pixels[size_t(y) * size_t(picture.width) + 170] & 0xff);
  }
  EXPECT_LT(darkest, 160U);
}

TEST_F(RealPlan, ThumbnailsScrolledAwayGiveWayToThoseAskedForLater) {
  ASSERT_EQ(draw->OpenFile(Write("a.pdf", MakePdf(QList<PdfPage>(260, PdfPage()))), ""), 0);
  for (int page = 1; page <= 260; ++page) draw->Pictures().Thumbnail(page, 64);
  ASSERT_TRUE(draw->Pictures().WaitUntilSharp(30000));
  for (int page = 61; page <= 260; ++page)
    EXPECT_NE(draw->Pictures().Thumbnail(page, 64), nullptr) << page;
}

TEST_F(RealPlan, ThumbnailsAndPrintPicturesAreMade) {
  ASSERT_EQ(draw->OpenFile(Write("a.pdf", MakePdf(QList<PdfPage>(12, PdfPage()))), ""), 0);
  for (int page = 1; page <= 12; ++page) draw->Pictures().Thumbnail(page, 100);
  ASSERT_TRUE(draw->Pictures().WaitUntilSharp(20000));
  for (int page = 1; page <= 12; ++page) {
    const auto thumbnail = draw->Pictures().Thumbnail(page, 100);
    ASSERT_NE(thumbnail, nullptr);
    EXPECT_EQ(thumbnail->height, 100);
  }
  EXPECT_EQ(draw->Pictures().Thumbnail(13, 100), nullptr);
  PlanView part;
  part.page = 7;
  part.pixelsPerPoint = 2;
  part.top = 1000;
  part.width = 1224;
  part.height = 584;
  const auto picture = draw->Pictures().PrintPicture(part, {});
  ASSERT_NE(picture, nullptr);
  EXPECT_EQ(picture->width, 1224);
  EXPECT_NE(picture->pixels[size_t(384) * 1224 + 400], 0xffffffffU);  // the line at 100 from below
}
