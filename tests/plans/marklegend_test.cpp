#include "plans/marklegend.h"

#include "plans/marktie.h"
#include "plans/planfixture.h"
#include "plans/planlegends.h"

// A legend on the plan: placed, saved, shown by others, refreshed, moved, removed.

using namespace tamo;
using namespace tamo::test;

namespace {

struct Legends : PlanFixture {
  void Begin(const QByteArray& page = "/MediaBox[0 0 612 792]") {
    Reopen(Write("a.pdf", MakePdf({{page, "q Q"}, {page, "q Q"}})));
    draw->onLineMeasured = [](double& length, QString& label) {
      length *= 4;
      label = "feet @ 1/4\"=1'";
    };
    draw->SetMarkColour("255000000");
    draw->DrawLine({300, 300}, {480, 300});
    draw->PickTool(PlanTool::None);
    MarkTie tie{{"12-2611001", false, "101", "Paint"}, "8 X 10.0", false, "10.0", "SF", 8, 0, 80};
    draw->KeepWith(draw->Marks()[0].name, TextOfTie(tie));
  }
  std::string Label() {
    for (const Mark& mark : draw->Marks()) {
      if (mark.kind == Mark::Kind::Legend) return mark.label.toStdString();
    }
    return "none";
  }
  PlanLegends Legend() { return PlanLegends(*draw); }
};

}  // namespace

TEST_F(Legends, IsKeptInThePlanAndShownByOthers) {
  for (const char* turn : {"", "/Rotate 90", "/Rotate 180", "/Rotate 270/UserUnit 2"}) {
    Begin(QByteArray("/MediaBox[0 0 612 792]") + turn);
    Legend().Place(false);
    EXPECT_EQ(Label(), "Totals of sheet 1\nPaint\t80.0 SF");
    ASSERT_EQ(draw->SaveAs(Path("b.pdf")), 0) << turn;
    ExpectValid(Path("b.pdf"));
    int width = 0;
    int height = 0;
    const QByteArray pixels = Painted(Path("b.pdf"), 1, width, height);
    if (!pixels.isEmpty() && !QByteArray(turn).contains("UserUnit")) {
      const Mark legend = draw->Marks()[0];
      const LegendShape shape = ShapeOfLegend(legend);
      EXPECT_TRUE(
          RedNear(pixels, width, height, {shape.patches[0].at.x + 4, shape.patches[0].at.y + 4}))
          << turn;
    }
    const Mark before = draw->Marks()[0];
    Reopen(Path("b.pdf"));
    ASSERT_EQ(draw->Marks().size(), 2U) << turn;
    const Mark after = draw->Marks()[0];
    EXPECT_EQ(after.kind, Mark::Kind::Legend);
    EXPECT_NEAR(after.points[0].x, before.points[0].x, 0.01) << turn;
    EXPECT_NEAR(after.points[0].y, before.points[0].y, 0.01) << turn;
    EXPECT_EQ(after.label, before.label);
    EXPECT_EQ(LegendOfMark(after).rows[0].colour, "255000000");
  }
}

TEST_F(Legends, PlacedAgainItIsBroughtUpToDate) {
  Begin();
  Legend().Place(false);
  draw->Hand().Choose(draw->MarksAsDrawn()[0].name);
  draw->Press({480, 300}, false);
  draw->Move({390, 300}, false);
  draw->Release({390, 300}, false);
  EXPECT_EQ(Label(), "Totals of sheet 1\nPaint\t80.0 SF") << "not by itself";
  Legend().Place(false);
  EXPECT_EQ(draw->Marks().size(), 2U);
  EXPECT_EQ(Label(), "Totals of sheet 1\nPaint\t40.0 SF");
  Legend().Place(true);
  EXPECT_EQ(draw->Marks().size(), 3U);
  EXPECT_EQ(Label(), "Totals of the plan\nPaint\t40.0 SF");
  Legend().Remove();
  EXPECT_EQ(Label(), "none");
  EXPECT_EQ(draw->Marks().size(), 1U);
}

TEST_F(Legends, IsMovedAsAWhole) {
  Begin();
  Legend().Place(false);
  const PagePoint at = draw->Hand().Chosen()->points[0];
  draw->Press({at.x + 20, at.y + 10}, false);
  draw->Move({at.x + 120, at.y + 60}, false);
  draw->Release({at.x + 120, at.y + 60}, false);
  EXPECT_EQ(draw->Hand().Chosen()->points[0], (PagePoint{at.x + 100, at.y + 50}));
  draw->Undo();
  EXPECT_EQ(draw->Hand().Chosen()->points[0], at);
}

TEST_F(Legends, WithoutMarksThereIsNone) {
  Reopen(Write("a.pdf", MakePdf({{}})));
  QString told;
  draw->onToolRefused = [&](const QString& words) { told = words; };
  Legend().Place(true);
  EXPECT_TRUE(draw->Marks().empty());
  EXPECT_TRUE(told.contains("no marks")) << told.toStdString();
  Legend().Refresh();
  EXPECT_TRUE(told.contains("no legend")) << told.toStdString();
}

TEST(LegendOfMark, WhateverAFileHoldsIsShown) {
  Mark mark;
  mark.kind = Mark::Kind::Legend;
  mark.points = {{10, 10}};
  for (const QString& label : {QString(), QString("\n\n\n"), QString("a\tb\tc\nx"),
                               QString(100000, '\n'), QString(5000, 'w')}) {
    mark.label = label;
    mark.kept = "legend\nplan\nno colour 12";
    const LegendShape shape = ShapeOfLegend(mark);
    EXPECT_LE(shape.patches.size(), kMostLegendRows);
    EXPECT_GT(shape.width, 0);
  }
}
