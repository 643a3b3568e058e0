#include "plans/ostfixture.h"

namespace tamo::test {
namespace {

// Areas drawn on the plan, and into which field of the takeoff they go.
class Surfaces : public OstTest {
 protected:
  Surfaces() {
    viewer.OpenFile(Path("Jobs/a.pdf"), {});
    Choose("Quarter");
  }
  // 18 points are a foot.
  void Draw(double feet, double top = 100, PlanTool tool = PlanTool::Area) {
    const double way = feet * 18;
    viewer.DrawOutline(tool,
                       {{100, top}, {100 + way, top}, {100 + way, top + way}, {100, top + way}});
  }
  void WaitFor(const char* code) { shared.IAmHere = QLatin1String(code); }
  std::string Hint() { return ost.ToolHint.Caption().toStdString(); }
};

TEST_F(Surfaces, AnAreaGoesToTheLineThatWaitsAndTheLengthWaitsThen) {
  const std::pair<const char*, QStringList> codes[] = {
      {"RH", {"How takes 100.0", "focus Length"}},
      {"RL", {"Length takes 100.0", "focus Length"}},
      {"EH", {"Hite takes 100.0", "focus eLength"}},
      {"EL", {"eLength takes 100.0", "focus eLength"}}};
  for (const auto& [code, calls] : codes) {
    WaitFor(code);
    Draw(10);
    EXPECT_EQ(takeoff.Take(), calls) << code;
    EXPECT_EQ(ost.DistanceText.Text(), "100.0");
    EXPECT_EQ(viewer.Marks()[0].label, "100.0 sq ft @ 1/4\"=1'");
  }
  WaitFor("RR");
  Draw(10);
  EXPECT_TRUE(takeoff.Take().isEmpty());
}

TEST_F(Surfaces, MetricPaperGivesSquareFeetToo) {
  Choose("OneFifty");
  WaitFor("RL");
  const double way = 20 / 25.4 * 72;  // 20 mm of paper are 1,000 feet
  viewer.DrawOutline(PlanTool::Area, {{10, 10}, {10 + way, 10}, {10 + way, 10 + way}});
  EXPECT_EQ(takeoff.Take(), (QStringList{"Length takes 500,000.0", "focus Length"}));
  EXPECT_EQ(viewer.Marks()[0].label, "500,000.0 sq ft @ 1mm:50 feet");
}

TEST_F(Surfaces, APolylineAndAPerimeterGoAsALineDoes) {
  WaitFor("RL");
  viewer.DrawOutline(PlanTool::Polyline, {{100, 100}, {190, 100}, {190, 190}});
  EXPECT_EQ(takeoff.Take(), (QStringList{"Length=10.0", "focus Length"}));
  EXPECT_EQ(viewer.Marks()[0].label, "10.0 feet @ 1/4\"=1'");
  Draw(5, 100, PlanTool::Perimeter);
  EXPECT_EQ(takeoff.Take(), (QStringList{"Length=20.0", "focus Length"}));
}

TEST_F(Surfaces, WhatTheTakeoffRefusesIsSaidAboveThePlanAndTheMarkStays) {
  WaitFor("RL");
  takeoff.areaWords = QStringLiteral("No square feet go there.");
  Draw(10);
  EXPECT_EQ(Hint(), "No square feet go there.");
  EXPECT_EQ(takeoff.Take(), QStringList{"Length takes 100.0"});
  EXPECT_EQ(viewer.Marks().size(), 1U);
}

TEST_F(Surfaces, WithoutAScaleNothingIsHandedOver) {
  WaitFor("RL");
  ost.DistanceText.SetText("7.0");
  ost.Scale2.SetText("0");
  viewer.DrawOutline(PlanTool::Area, {{0, 0}, {72, 0}, {72, 72}, {0, 72}});
  EXPECT_TRUE(takeoff.Take().isEmpty());
  EXPECT_EQ(ost.DistanceText.Text(), "7.0");
  EXPECT_EQ(viewer.Marks()[0].label, "1.0 sq inches");
  EXPECT_EQ(Hint(), "Set a scale: without one there are no square feet.");
  ost.Scale1.SetText("abc");
  ost.Scale2.SetText("1");
  viewer.DrawOutline(PlanTool::Area, {{0, 0}, {72, 0}, {72, 72}, {0, 72}});
  EXPECT_TRUE(takeoff.Take().isEmpty());
}

TEST_F(Surfaces, TheToolSaysWhatItDoesAndTheMenuTakesIt) {
  EXPECT_EQ(Hint(), "");
  Choose("DrawArea");
  EXPECT_EQ(viewer.Tool(), PlanTool::Area);
  EXPECT_EQ(desk.Focused(), &ost.picPdfDraw);
  EXPECT_EQ(ost.Mode.Text(), "Measuring");
  EXPECT_TRUE(ost.ToolHint.Caption().contains("Enter closes it"));
  Draw(3, 100, PlanTool::CutOut);
  EXPECT_TRUE(ost.ToolHint.Caption().contains("lies in none"));
  Choose("DrawPolyline");
  EXPECT_EQ(viewer.Tool(), PlanTool::Polyline);
  viewer.PickTool(PlanTool::Measuring);
  EXPECT_EQ(Hint(), "");
}

}  // namespace
}  // namespace tamo::test
