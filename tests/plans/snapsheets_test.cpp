#include <cmath>
#include <random>

#include "plans/planfixture.h"

// Lines of known length, drawn on sheets of every turn, crop and unit, measured by taking their
// ends as the pointer does.

using namespace tamo;
using namespace tamo::test;

namespace {

struct Kind {
  const char* page;
  double left, bottom, right, top;  // what is seen of it, in its own units
  int turn;
  double unit;
};

constexpr Kind kKinds[] = {
    {"/MediaBox[0 0 2592 1728]", 0, 0, 2592, 1728, 0, 1},
    {"/MediaBox[0 0 2592 1728]/Rotate 90", 0, 0, 2592, 1728, 90, 1},
    {"/MediaBox[0 0 2592 1728]/Rotate 180", 0, 0, 2592, 1728, 180, 1},
    {"/MediaBox[0 0 2592 1728]/Rotate 270", 0, 0, 2592, 1728, 270, 1},
    {"/MediaBox[-300 -200 2592 1728]/CropBox[-100 -50 2000 1500]", -100, -50, 2000, 1500, 0, 1},
    {"/MediaBox[0 0 2592 1728]/CropBox[100.5 60.25 2500 1700]/Rotate 90", 100.5, 60.25, 2500, 1700,
     90, 1},
    {"/MediaBox[0 0 1296 864]/UserUnit 2", 0, 0, 1296, 864, 0, 2},
    {"/MediaBox[0 0 1296 864]/CropBox[50 60 1200 800]/Rotate 270/UserUnit 1.5", 50, 60, 1200, 800,
     270, 1.5}};

// Where a place of the page's own coordinates stands on the page looked at.
PagePoint Seen(const Kind& kind, double x, double y) {
  const double u = (x - kind.left) * kind.unit;
  const double v = (y - kind.bottom) * kind.unit;
  const double width = (kind.right - kind.left) * kind.unit;
  const double height = (kind.top - kind.bottom) * kind.unit;
  switch (kind.turn) {
    case 90:
      return {v, u};
    case 180:
      return {width - u, v};
    case 270:
      return {height - v, width - u};
    default:
      return {u, height - v};
  }
}

struct Drawn {
  double x1, y1, x2, y2;
};

struct Snapping : PlanFixture {
  std::mt19937 random{3};

  // Lines far enough apart that no other end is nearer than the one meant.
  std::vector<Drawn> Lines(const Kind& kind, QByteArray& content, bool inForm) {
    std::vector<Drawn> lines;
    const int across = 4;
    const double w = (kind.right - kind.left) / across;
    const double h = (kind.top - kind.bottom) / across;
    std::uniform_real_distribution<double> part(0.15, 0.85);
    for (int i = 0; i < across * across; ++i) {
      const double x = kind.left + i % across * w;
      const double y = kind.bottom + i / across * h;
      lines.push_back(
          {x + part(random) * w, y + part(random) * h, x + part(random) * w, y + part(random) * h});
      const Drawn& l = lines.back();
      // Some of them under a matrix of their own.
      const double by = inForm ? 4 : 1;
      content +=
          QByteArray("q ") + QByteArray::number(by) + " 0 0 " + QByteArray::number(by) + " 0 0 cm ";
      for (const double number : {l.x1 / by, l.y1 / by})
        content += QByteArray::number(number, 'f', 6) + ' ';
      content += "m ";
      for (const double number : {l.x2 / by, l.y2 / by})
        content += QByteArray::number(number, 'f', 6) + ' ';
      content += "l S Q\n";
    }
    return lines;
  }
};

}  // namespace

TEST_F(Snapping, LinesOfKnownLengthMeasureExactlyOnEveryKindOfSheet) {
  std::uniform_real_distribution<double> shake(-3, 3);
  int measured = 0;
  for (const Kind& kind : kKinds) {
    for (const bool inForm : {false, true}) {
      QByteArray content;
      const std::vector<Drawn> lines = Lines(kind, content, inForm);
      draw = std::make_unique<PdfDraw>(files, engine);
      ASSERT_EQ(draw->OpenFile(Write("s.pdf", MakePdf({{kind.page, content}})), ""), 0);
      double length = 0;
      draw->onLineMeasured = [&](double& inches, QString&) { length = inches; };
      draw->PickTool(PlanTool::Measuring);
      draw->Snap().Follow();
      ASSERT_TRUE(draw->Snap().Lines().Wait(20000));
      for (const Drawn& line : lines) {
        const double known = std::hypot(line.x2 - line.x1, line.y2 - line.y1) * kind.unit / 72;
        if (known < 0.5) continue;
        const auto take = [&](double x, double y) {
          const PagePoint at = Seen(kind, x, y);
          return draw->Snap().Point({at.x + shake(random), at.y + shake(random)}, false);
        };
        const PagePoint from = take(line.x1, line.y1);
        draw->Press(from, false);
        const PagePoint to = take(line.x2, line.y2);
        draw->Release(to, false);
        EXPECT_NEAR(length, known, 1e-4) << kind.page;
        ++measured;
      }
    }
  }
  EXPECT_GT(measured, 150);
}

TEST_F(Snapping, AltHoldsItOffAndTabTakesTheNextPlace) {
  const QByteArray content = "100 692 m 300 692 l S 100 692 m 100 500 l S 104 700 m 104 500 l S";
  ASSERT_EQ(draw->OpenFile(Write("s.pdf", MakePdf({{"/MediaBox[0 0 612 792]", content}})), ""), 0);
  draw->PickTool(PlanTool::Measuring);
  draw->Snap().Follow();
  ASSERT_TRUE(draw->Snap().Lines().Wait(20000));
  const PagePoint at = {99, 101};
  const PagePoint taken = draw->Snap().Point(at, false);
  EXPECT_NEAR(taken.x, 100, 0.001);
  EXPECT_NEAR(taken.y, 100, 0.001);
  const PagePoint free = draw->Snap().Point(at, true);
  EXPECT_EQ(free.x, at.x);
  draw->Move(draw->Snap().Point(at, false), false);
  ASSERT_TRUE(draw->Snap().Sign().has_value());
  draw->Key({PlanKey::NextSnap, false, false});
  EXPECT_GT(Distance(draw->CrossHair(), {100, 100}), 1);
  const PagePoint chosen = draw->Snap().Point(at, false);
  EXPECT_EQ(Distance(chosen, draw->CrossHair()), 0) << "a press there takes what was chosen";
  draw->Key({PlanKey::Snap, false, false});
  EXPECT_FALSE(draw->Snap().On());
  EXPECT_EQ(draw->Snap().Point(at, false).x, at.x);
}

TEST_F(Snapping, ByKeysAlone) {
  const QByteArray content = "300 400 m 390 400 l S";
  ASSERT_EQ(draw->OpenFile(Write("s.pdf", MakePdf({{"/MediaBox[0 0 612 792]", content}})), ""), 0);
  double length = 0;
  draw->onLineMeasured = [&](double& inches, QString&) { length = inches; };
  draw->PickTool(PlanTool::Measuring);
  draw->Snap().Follow();
  ASSERT_TRUE(draw->Snap().Lines().Wait(20000));
  const auto press = [&](PlanKey key, int times = 1) {
    for (int i = 0; i < times; ++i) draw->Key({key, false, false});
  };
  press(PlanKey::NextSnap);  // from the middle of the sheet to the end nearby
  press(PlanKey::Space);
  press(PlanKey::Right, 9);
  press(PlanKey::NextSnap);
  press(PlanKey::Space);
  EXPECT_NEAR(length, 90 / 72.0, 1e-5);
}

TEST_F(Snapping, TheLinesGoWithThePage) {
  const PdfPage page = {"/MediaBox[0 0 612 792]", "100 692 m 300 692 l S"};
  ASSERT_EQ(draw->OpenFile(Write("s.pdf", MakePdf({page, {"/MediaBox[0 0 612 792]", "q Q"}})), ""),
            0);
  draw->Snap().Follow();
  EXPECT_EQ(draw->Snap().Lines().Index(), nullptr) << "nothing is read without a tool";
  draw->PickTool(PlanTool::Area);
  draw->Snap().Follow();
  ASSERT_TRUE(draw->Snap().Lines().Wait(20000));
  EXPECT_EQ(draw->Snap().Lines().Index()->Lines(), 1U);
  draw->PickTool(PlanTool::None);
  draw->Snap().Follow();
  EXPECT_NE(draw->Snap().Lines().Index(), nullptr) << "tools come and go";
  draw->SetPage(2);
  draw->Snap().Follow();
  EXPECT_EQ(draw->Snap().Lines().Index(), nullptr);
}

TEST_F(Snapping, ASheetWithoutLinesSaysSo) {
  QString said;
  const auto said_of = [&](const QByteArray& content) {
    draw = std::make_unique<PdfDraw>(files, engine);
    EXPECT_EQ(draw->OpenFile(Write("s.pdf", MakePdf({{"/MediaBox[0 0 612 792]", content}})), ""),
              0);
    said.clear();
    draw->onToolRefused = [&](const QString& words) { said = words; };
    draw->PickTool(PlanTool::Measuring);
    draw->Snap().Follow();
    EXPECT_TRUE(draw->Snap().Lines().Wait(20000));
    EXPECT_EQ(draw->Snap().Point({10, 10}, false).x, 10);
    return said;
  };
  EXPECT_EQ(said_of("q Q"), "This sheet has no lines to snap to.");
  EXPECT_EQ(said_of("q 612 0 0 792 0 0 cm BI /W 1 /H 1 /BPC 8 /CS /G ID x EI Q"),
            "This sheet is a scanned picture: it has no lines to snap to.");
  EXPECT_EQ(said_of("10 10 m 100 100 l S"), "");
}
