#include "plans/comparison.h"

#include "plans/overlayplan.h"
#include "plans/planfixture.h"

using namespace tamo;
using namespace tamo::test;

namespace {

constexpr char kFont[] =
    "/Resources<</Font<</F1<</Type/Font/Subtype/Type1/BaseFont/Helvetica/Encoding/"
    "WinAnsiEncoding>>>>>>";

QByteArray Text(double x, double y, const char* text, double size = 12) {
  return "BT /F1 " + QByteArray::number(size) + " Tf " + QByteArray::number(x) + ' ' +
         QByteArray::number(y) + " Td (" + text + ") Tj ET\n";
}

// A small floor: frame, walls, a dimension, its number in the title block.
QByteArray Floor(const char* number, const char* dimension, const QByteArray& more = {}) {
  return QByteArray(
             "1 w 20 20 752 572 re S 600 20 172 572 re S\n"
             "100 100 400 300 re S 100 250 m 500 250 l S 300 100 m 300 400 l S\n"
             "140 130 m 260 220 l S 340 300 90 60 re S\n") +
         Text(180, 410, dimension) + Text(620, 40, number, 24) + Text(620, 76, "FLOOR PLAN") + more;
}

PdfPage Page(const QByteArray& content, const QByteArray& boxes = "/MediaBox[0 0 792 612]") {
  return {boxes + kFont, content};
}

struct Comparing : PlanFixture {
  // The plan that is open, and its former state.
  void Open(const QList<PdfPage>& now, const QList<PdfPage>& old) {
    Write("old.pdf", MakePdf(old));
    ASSERT_EQ(draw->OpenFile(Write("now.pdf", MakePdf(now)), ""), 0)
        << draw->Problem().toStdString();
    draw->onPageChanged = [this] { draw->Compared().Follow(); };
  }
  void Compare(const QString& name = "old.pdf") {
    draw->Compared().Begin(Path(name), "");
    EXPECT_TRUE(draw->Compared().Jobs().Settle(20000));
  }
  const SheetsCompared& Known() {
    static const SheetsCompared none;
    const SheetsCompared* known = draw->Compared().Known();
    EXPECT_NE(known, nullptr) << Words();
    return known == nullptr ? none : *known;
  }
  std::string Words() { return draw->Compared().Words().toStdString(); }
  QStringList Places() {
    QStringList words;
    for (const ChangedPlace& place : Known().places) words += place.words;
    return words;
  }
  // What the overlay shows around a place: the strongest of red, green and grey.
  std::string At(double x, double y) {
    PlanView view;
    view.page = draw->Page();
    view.left = static_cast<int>(x) - 4;
    view.top = static_cast<int>(y) - 4;
    view.width = view.height = 9;
    const auto picture = draw->Pictures().PrintPicture(view, nullptr);
    if (picture == nullptr) return "nothing painted";
    int red = 0;
    int green = 0;
    int grey = 0;
    for (const uint32_t pixel : picture->pixels) {
      const int r = int(pixel >> 16 & 255);
      const int g = int(pixel >> 8 & 255);
      const int b = int(pixel & 255);
      red = std::max(red, r - std::max(g, b));
      green = std::max(green, g - std::max(r, b));
      if (r == g && g == b) grey = std::max(grey, 255 - r);
    }
    if (std::max({red, green, grey}) < 40) return "white";
    return red > green && red > grey ? "red" : green > grey ? "green" : "grey";
  }
};

}  // namespace

TEST_F(Comparing, WhatWentIsRedWhatCameIsGreenWhatStayedIsGrey) {
  Open({Page(Floor("A-101", "8'-0\"", "50 450 m 250 450 l S\n"))},
       {Page(Floor("A-101", "8'-0\"", "50 500 m 250 500 l S\n"))});
  Compare();
  EXPECT_EQ(At(150, 612 - 450), "green") << Words();
  EXPECT_EQ(At(150, 612 - 500), "red");
  EXPECT_EQ(At(400, 612 - 250), "grey");
  EXPECT_EQ(At(60, 300), "white");
  draw->Compared().Swap();
  EXPECT_EQ(At(150, 612 - 450), "red");
  draw->Key({PlanKey::Escape, false, false});
  EXPECT_FALSE(draw->Compared().On());
  EXPECT_EQ(At(150, 612 - 450), "grey");
}

TEST_F(Comparing, OneLayerAlone) {
  Open({Page(Floor("A-101", "8'-0\"", "50 450 m 250 450 l S\n"))},
       {Page(Floor("A-101", "8'-0\"", "50 500 m 250 500 l S\n"))});
  Compare();
  draw->Key({PlanKey::Layer, false, false});
  EXPECT_EQ(At(150, 612 - 500), "grey");
  EXPECT_EQ(At(150, 612 - 450), "white");
  EXPECT_NE(Words().find("The old sheet alone"), std::string::npos);
  draw->Key({PlanKey::Layer, false, false});
  EXPECT_EQ(At(150, 612 - 500), "white");
  draw->Key({PlanKey::Layer, false, false});
  EXPECT_EQ(At(150, 612 - 450), "green");
}

TEST_F(Comparing, SheetsArePairedByTheirNumbers) {
  Open({Page(Floor("A-101", "1'-0\"")), Page(Floor("A-102", "2'-0\""))},
       {Page(Floor("A-100", "0'-0\"")), Page(Floor("A-101", "1'-0\"")),
        Page(Floor("A102", "3'-0\""))});
  Compare();
  EXPECT_EQ(Known().oldPage, 2);
  EXPECT_TRUE(Known().byNumber);
  EXPECT_EQ(Words().find("Sheet A-101 (page 1 of 2) of this plan over sheet A-101 (page 2 of 3) of "
                         "old.pdf, paired by the sheet number."),
            0U)
      << Words();
  EXPECT_EQ(Places(), QStringList());
  draw->SetPage(2);
  EXPECT_TRUE(draw->Compared().Jobs().Settle(20000));
  EXPECT_EQ(Known().oldPage, 3);
  EXPECT_EQ(Places(), QStringList({"3'-0\" became 2'-0\"", "A102 became A-102"}));
  draw->Key({PlanKey::PairBefore, false, true});
  EXPECT_TRUE(draw->Compared().Jobs().Settle(20000));
  EXPECT_EQ(Known().oldPage, 2);
  EXPECT_NE(Words().find("chosen by hand"), std::string::npos) << Words();
}

TEST_F(Comparing, ASheetWithoutAPartnerSaysSo) {
  Open({Page(Floor("A-601", "1'-0\""))}, {Page(Floor("A-101", "1'-0\""))});
  Compare();
  EXPECT_EQ(Known().oldPage, 0);
  EXPECT_EQ(Words(),
            "No sheet of old.pdf has the number A-601: Ctrl+Page Down lays its sheets over "
            "this one by hand.");
  draw->Key({PlanKey::PairNext, false, true});
  EXPECT_TRUE(draw->Compared().Jobs().Settle(20000));
  EXPECT_EQ(Known().oldPage, 1);
}

TEST_F(Comparing, WithoutNumbersByTheirPages) {
  const QByteArray plain = "1 w 20 20 752 572 re S 100 100 m 300 300 l S";
  Open({Page(plain), Page(plain)}, {Page(plain)});
  Compare();
  EXPECT_NE(Words().find("paired by their pages"), std::string::npos) << Words();
  draw->SetPage(2);
  EXPECT_TRUE(draw->Compared().Jobs().Settle(20000));
  EXPECT_EQ(Known().oldPage, 1) << "the last there is";
}

TEST_F(Comparing, ChangedTextsAndLinesAreListedAndWalkedThrough) {
  Open({Page(Floor("A-101", "9'-0\"", "50 500 m 80 500 l S\n"))}, {Page(Floor("A-101", "8'-0\""))});
  Compare();
  EXPECT_EQ(Places(), QStringList({"New lines", "8'-0\" became 9'-0\""})) << Words();
  EXPECT_NE(Words().find("2 changed places."), std::string::npos) << Words();
  PageBox shown;
  draw->Compared().onShowPlace = [&](const PageBox& box) { shown = box; };
  draw->Key({PlanKey::No, false, false});
  EXPECT_NEAR(shown.left, 50, 1);
  EXPECT_NEAR(shown.right, 80, 1);
  EXPECT_NEAR(shown.top, 612 - 500, 2);
  draw->Key({PlanKey::No, false, false});
  EXPECT_EQ(draw->Compared().Place(), 1);
  draw->Key({PlanKey::No, false, false});
  EXPECT_EQ(draw->Compared().Place(), 0) << "round the end";
  draw->Key({PlanKey::No, true, false});
  EXPECT_EQ(draw->Compared().Place(), 1);
  draw->Compared().onShowPlace = nullptr;
}

// The same sheet as another program writes it: in other units, cut otherwise, in another order,
// with another origin.
TEST_F(Comparing, TheSameSheetWrittenOtherwiseHasNoChanges) {
  const QByteArray plain = Floor("A-101", "8'-0\"");
  const QByteArray written = "q 0.5 0 0 0.5 30.25 -40.5 cm 2 w\n" + Text(1240, 80, "A-101", 48) +
                             Text(1240, 152, "FLOOR PLAN", 24) + Text(360, 820, "8'", 24) +
                             "680 600 180 120 re S 280 260 m 400 350 l S 400 350 m 520 440 l S\n"
                             "600 800 m 600 500 l S 600 500 m 600 200 l S 200 500 m 1000 500 l S\n"
                             "200 200 m 1000 200 l 1000 800 l 200 800 l h S 1200 40 344 1144 re S "
                             "40 40 1504 1144 re S Q\n";
  // The rest of the dimension where the first part ends.
  const double after = 180 + 12 * (0.556 + 0.191);
  const QByteArray rest = "q 1 0 0 1 30.25 -40.5 cm " + Text(after, 410, "-0\"") + "Q\n";
  Open({Page(written + rest, "/MediaBox[30.25 -40.5 822.25 571.5]")}, {Page(plain)});
  Compare();
  EXPECT_TRUE(Known().alignment.sure) << Words();
  EXPECT_EQ(Places(), QStringList()) << Words();
  EXPECT_NE(Words().find("No changes."), std::string::npos) << Words();
}

TEST_F(Comparing, EveryPaperLiesOnTheOther) {
  const QByteArray now = Floor("A-101", "8'-0\"", "50 450 m 250 450 l S\n");
  const QByteArray old = Floor("A-101", "8'-0\"", "50 500 m 250 500 l S\n");
  for (const char* boxes :
       {"/MediaBox[0 0 1584 1224]/UserUnit 0.5", "/MediaBox[0 0 792 612]/UserUnit 2",
        "/MediaBox[-100 -50 900 700]", "/MediaBox[0 0 792 612]/CropBox[10 10 780 600]",
        "/MediaBox[0 0 792 612]/Rotate 90", "/MediaBox[0 0 792 612]/Rotate 180",
        "/MediaBox[0 0 792 612]/Rotate 270/UserUnit 1.5"}) {
    const bool half = QByteArray(boxes).contains("0.5");
    const QByteArray written = half ? "2 0 0 2 0 0 cm " + old : old;
    draw = std::make_unique<PdfDraw>(files, engine);
    Open({Page(now)}, {Page(written, boxes)});
    Compare();
    EXPECT_TRUE(Known().alignment.sure) << boxes << ' ' << Words();
    EXPECT_EQ(At(150, 612 - 450), "green") << boxes;
    EXPECT_EQ(At(150, 612 - 500), "red") << boxes;
    EXPECT_EQ(At(400, 612 - 250), "grey") << boxes;
    EXPECT_EQ(Known().places.size(), 2U) << boxes << ' ' << Places().join('|').toStdString();
  }
}

TEST_F(Comparing, TwoPointsLayWhatHasLittleInCommon) {
  // The same corner of a building on two sheets, with nothing else alike.
  const QByteArray now =
      "1 w 100 100 m 400 100 l S 100 100 m 100 300 l S "
      "500 90 m 700 240 l S 450 300 m 480 580 l S 520 300 m 760 310 l S 300 400 m 420 590 l S "
      "200 450 m 210 600 l S 610 400 m 780 520 l S";
  const QByteArray old =
      "1 w 200 150 m 350 150 l S 200 150 m 200 250 l S "
      "500 500 m 630 520 l S 510 400 m 530 580 l S 600 300 m 740 400 l S 620 380 m 700 520 l S "
      "30 30 m 160 80 l S 90 400 m 130 540 l S 400 30 m 700 120 l S 300 500 m 450 350 l S";
  Open({Page(now)}, {Page(old)});
  Compare();
  EXPECT_FALSE(Known().alignment.sure) << Words();
  EXPECT_NE(Words().find("Give two points"), std::string::npos) << Words();
  draw->Key({PlanKey::TwoPoints, false, false});
  EXPECT_NE(Words().find("Point 1 of 2: press a place on the new sheet"), std::string::npos);
  const auto press = [&](double x, double y) {
    draw->Press({x, 612 - y}, false);
    draw->Release({x, 612 - y}, false);
  };
  press(100, 100);
  EXPECT_NE(Words().find("this is the old sheet"), std::string::npos) << Words();
  press(200, 150);
  press(400, 100);
  press(350, 150);
  EXPECT_TRUE(draw->Compared().Jobs().Settle(20000));
  EXPECT_TRUE(Known().alignment.byHand) << Words();
  EXPECT_NEAR(Known().alignment.fit.Size(), 2, 1e-3);
  const PagePoint corner = Known().alignment.fit.To({200, 612 - 250});
  EXPECT_NEAR(corner.x, 100, 0.2);
  EXPECT_NEAR(corner.y, 612 - 300, 0.2);
  EXPECT_FALSE(draw->PointNext());
}

TEST_F(Comparing, ThePointsByKeysAlone) {
  const QByteArray now = "1 w 300 300 m 372 300 l S";
  Open({Page(now)}, {Page("1 w 300 300 m 372 300 l S 10 10 m 90 300 l S")});
  Compare();
  draw->Key({PlanKey::TwoPoints, false, false});
  const auto press = [&](PlanKey key, int times = 1) {
    for (int i = 0; i < times; ++i) draw->Key({key, false, false});
  };
  press(PlanKey::Space, 2);
  press(PlanKey::Right, 8);
  press(PlanKey::Space, 2);
  EXPECT_TRUE(draw->Compared().Jobs().Settle(20000));
  EXPECT_NEAR(Known().alignment.fit.Size(), 1, 1e-6) << Words();
  draw->Key({PlanKey::TwoPoints, false, false});
  press(PlanKey::Space, 4);
  EXPECT_NE(Words().find("the same place"), std::string::npos) << Words();
  draw->Key({PlanKey::Escape, false, false});
  EXPECT_TRUE(draw->Compared().On()) << "the first Escape leaves the points";
  EXPECT_FALSE(draw->PointNext());
}

TEST_F(Comparing, ScansAreComparedByTheirPictures) {
  // Walls as a picture of pixels, 396 by 306; the new one has a wall more.
  const auto scan = [](bool more) {
    QByteArray pixels(396 * 306, '\xff');
    const auto line = [&](int x1, int y1, int x2, int y2) {
      for (int y = y1; y <= y2; ++y) {
        for (int x = x1; x <= x2; ++x) pixels[y * 396 + x] = '\0';
      }
    };
    line(10, 10, 385, 11);
    line(10, 295, 385, 296);
    line(10, 10, 11, 296);
    line(385, 10, 386, 296);
    line(60, 60, 300, 61);
    line(60, 60, 61, 240);
    line(60, 240, 300, 241);
    line(150, 61, 151, 240);
    if (more) line(220, 80, 221, 200);
    return "q 792 0 0 612 0 0 cm BI /W 396 /H 306 /BPC 8 /CS /G ID " + pixels + " EI Q";
  };
  Open({Page(scan(true))}, {Page(scan(false))});
  Compare();
  EXPECT_NE(Words().find("compared by their pictures"), std::string::npos) << Words();
  EXPECT_TRUE(Known().alignment.sure) << Words();
  ASSERT_EQ(Known().places.size(), 1U) << Places().join('|').toStdString();
  EXPECT_NEAR(Known().places[0].box.left, 440, 3);
  EXPECT_NEAR(Known().places[0].box.top, 160, 3);
}

TEST_F(Comparing, WhatCantBeComparedIsSaidInWords) {
  Open({Page(Floor("A-101", "1'-0\""))}, {Page(Floor("A-101", "1'-0\""))});
  Compare("now.pdf");
  EXPECT_EQ(Words(), "now.pdf is the plan that is open: pick its other revision.");
  Compare("nowhere.pdf");
  EXPECT_NE(Words().find("nowhere.pdf can't be compared, because"), std::string::npos) << Words();
  Write("damaged.pdf", "%PDF-1.4\nthis is no plan");
  Compare("damaged.pdf");
  EXPECT_NE(Words().find("damaged.pdf can't be compared: "), std::string::npos) << Words();
  Write("none.pdf", MakePdf({}));
  Compare("none.pdf");
  EXPECT_FALSE(draw->Compared().On()) << Words();
  EXPECT_NE(Words(), "");
  Compare();
  EXPECT_TRUE(draw->Compared().On());
  draw->OpenFile(Path("old.pdf"), "");
  EXPECT_FALSE(draw->Compared().On()) << "another plan came up";
}

TEST_F(Comparing, NothingIsWrittenToTheOtherPlan) {
  Open({Page(Floor("A-101", "1'-0\""))}, {Page(Floor("A-101", "2'-0\""))});
  const QByteArray torn = Read(Path("old.pdf")) + "\n%TamoMarks\n12 0 obj\n<<";
  Write("old.pdf", torn);
  Compare();
  EXPECT_EQ(Known().oldPage, 1) << Words();
  draw->Compared().End();
  EXPECT_EQ(Read(Path("old.pdf")), torn);
}

TEST_F(Comparing, HugelyDifferentPapersEndInWords) {
  Open({Page(Floor("A-101", "1'-0\""))}, {{QByteArray("/MediaBox[0 0 14400 14400]") + kFont,
                                           "20 0 0 20 0 0 cm " + Floor("A-101", "1'-0\"")}});
  Compare();
  EXPECT_TRUE(Known().alignment.sure) << Words();
  Open({Page(Floor("A-101", "1'-0\""))}, {Page("1 w 1 1 m 2 2 l S", "/MediaBox[0 0 3 3]")});
  Compare();
  EXPECT_NE(Words(), "");
}

TEST_F(Comparing, WhenTheOtherPlanIsTheNewerOneTheWordsTurnRound) {
  Open({Page(Floor("A-101", "9'-0\"", "50 500 m 80 500 l S\n"))}, {Page(Floor("A-101", "8'-0\""))});
  Compare();
  draw->Compared().Swap();
  QStringList words;
  for (const ChangedPlace& place : Known().places) words += draw->Compared().WordsOf(place);
  EXPECT_EQ(words, QStringList({"Lines gone", "9'-0\" became 8'-0\""}));
  draw->Key({PlanKey::Layer, false, false});
  EXPECT_NE(Words().find("The new sheet alone"), std::string::npos) << Words();
  draw->Compared().Swap();
  EXPECT_NE(Words().find("The old sheet alone"), std::string::npos) << Words();
}

TEST_F(Comparing, SheetsOfAMonstrousSizeTakeNoMonstrousMemory) {
  const QByteArray page =
      "1000 w 100000 100000 m 900000 100000 l S 100000 200000 m 200000 900000 l S";
  const QByteArray boxes = "/MediaBox[0 0 2000000 2000000]";
  Open({Page(page + " 500000 500000 m 600000 600000 l S", boxes)}, {Page(page, boxes)});
  // As long as it takes on a busy machine.
  draw->Compared().Begin(Path("old.pdf"), "");
  ASSERT_TRUE(draw->Compared().Jobs().Settle(120000));
  EXPECT_TRUE(Known().looked) << Words();
}
