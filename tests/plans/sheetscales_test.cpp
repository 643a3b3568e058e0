#include "plans/sheetscales.h"

#include "plans/ostfixture.h"

namespace tamo::test {
namespace {

// The scale in force held against the sheet in front.
class SheetScalesTest : public OstTest {
 protected:
  SheetScalesTest() {
    engine.pages = 4;
    engine.words = {QStringLiteral("SCALE: 1/4\" = 1'-0\""),
                    QStringLiteral("SCALE: 1/8\" = 1'-0\""), QStringLiteral("NOT TO SCALE"),
                    QString()};
    viewer.OpenFile(Path("Jobs/a.pdf"), {});
  }
  void Measure() {
    viewer.PickTool(PlanTool::Measuring);
    viewer.Snap().TellOfSheet(5000);
  }
  void Turn(int page) {
    viewer.TurnPage(page);
    viewer.Snap().TellOfSheet(5000);
  }
  std::string Note() { return ost.ScaleNote.Caption().toStdString(); }
  std::string Scale() { return ost.ScaleInForce.Caption().toStdString(); }
  // 18 points are a foot at a quarter inch.
  void Draw(double points) { viewer.DrawLine({100, 100}, {100 + points, 100}); }
};

TEST_F(SheetScalesTest, TheScaleThatASheetPrintsIsOffered) {
  Measure();
  EXPECT_EQ(Note(), "This sheet prints the scale 1/4\" = 1'.");
  EXPECT_TRUE(ost.TakeScale.Shown());
  EXPECT_EQ(ost.TakeScale.Caption(), "&Use 1/4\" = 1'");
  Click(ost.TakeScale);
  EXPECT_EQ(Scale(), "1/4\" = 1'");
  EXPECT_EQ(keeper.record.scale1, "1/4");
  EXPECT_EQ(keeper.record.scale2, "1");
  EXPECT_EQ(keeper.record.text5, QLatin1String(kInchText));
  EXPECT_EQ(Note(), "");
  EXPECT_FALSE(ost.TakeScale.Shown());
}

TEST_F(SheetScalesTest, AnotherScaleThanThePrintedOneIsSaid) {
  Choose("Quarter");
  Measure();
  EXPECT_EQ(Note(), "");
  Turn(2);
  EXPECT_EQ(Note(), "In force is 1/4\" = 1', but this sheet prints 1/8\" = 1'.");
  EXPECT_TRUE(ost.TakeScale.Shown());
  Turn(3);
  EXPECT_EQ(Note(), "This sheet says NOT TO SCALE: check a dimension before you measure.");
  EXPECT_FALSE(ost.TakeScale.Shown());
  Turn(4);
  EXPECT_EQ(Note(), "The scale 1/4\" = 1' was never set or checked on this sheet.");
  EXPECT_EQ(Scale(), "1/4\" = 1'") << "nothing is changed by itself";
}

TEST_F(SheetScalesTest, AScaleSetAgainstThePrintedOneIsSaidUntilADimensionProvesIt) {
  Choose("Eighth");
  Measure();
  EXPECT_EQ(Note(), "In force is 1/8\" = 1', but this sheet prints 1/4\" = 1'.");
  Enter(ost.KnownDimension, "20");
  Draw(180);
  EXPECT_EQ(Note(), "") << "the plan was printed at half its size";
}

TEST_F(SheetScalesTest, ADimensionThatIsRightCountsAsChecked) {
  Choose("Quarter");
  Turn(4);
  EXPECT_NE(Note(), "");
  Enter(ost.KnownDimension, "12");
  Draw(180);
  EXPECT_NE(Note(), "") << "it is 10 feet";
  Enter(ost.KnownDimension, "10'-0\"");
  Draw(180);
  EXPECT_EQ(ost.DimensionResult.Caption(), "Measured 10.0: the scale is right.");
  EXPECT_EQ(Note(), "");
}

TEST_F(SheetScalesTest, TheScaleUsedLastOnASheetIsOfferedOnComingBack) {
  Choose("Half");
  Turn(4);
  Choose("Eighth");
  Turn(1);
  EXPECT_EQ(Note(), "On this sheet 1/2\" = 1' was used; in force is 1/8\" = 1'.");
  Click(ost.TakeScale);
  EXPECT_EQ(Scale(), "1/2\" = 1'");
  Turn(4);
  EXPECT_EQ(ost.TakeScale.Caption(), "&Use 1/8\" = 1'");
}

TEST_F(SheetScalesTest, TheSwitchHasTheScaleFollowTheSheet) {
  Choose("Half");
  desk.ClickInto(ost.FollowSheet);
  ASSERT_EQ(ost.FollowSheet.Value(), 1);
  Turn(2);
  EXPECT_EQ(Scale(), "1/8\" = 1'");
  EXPECT_EQ(Note(), "");
  Turn(3);
  EXPECT_EQ(Scale(), "1/8\" = 1'") << "a sheet that is not to scale has none";
  Turn(1);
  EXPECT_EQ(Scale(), "1/2\" = 1'") << "what was set here goes before what is printed";
  desk.ClickInto(ost.FollowSheet);
  Turn(2);
  EXPECT_EQ(Scale(), "1/2\" = 1'");
}

TEST_F(SheetScalesTest, AMetricScaleGoesToInchesWithThePrintedOne) {
  Choose("OneFifty");
  EXPECT_EQ(viewer.Unit(), PaperUnit::Millimetres);
  Measure();
  EXPECT_EQ(Note(), "In force is 1 mm = 50 ft, but this sheet prints 1/4\" = 1'.");
  Turn(2);
  Click(ost.TakeScale);
  EXPECT_EQ(viewer.Unit(), PaperUnit::Inches);
  EXPECT_EQ(viewer.UnitName(), "feet");
  Draw(90);
  EXPECT_EQ(viewer.Marks()[0].label, "10.0 feet @ 1/8\"=1'");
}

TEST_F(SheetScalesTest, CalibrateSetsTheScaleByADimension) {
  Turn(4);
  desk.UserFocus(ost.KnownDimension);
  desk.TypeText(ost.KnownDimension, "10'-0\"");
  Click(ost.Calibrate);
  EXPECT_EQ(ost.DimensionResult.Caption(),
            "Draw along the 10'-0\". The scale is set by it; it leaves no mark.");
  Draw(180.3);
  EXPECT_EQ(Scale(), "1/4\" = 1'");
  EXPECT_EQ(ost.DimensionResult.Caption(), "Scale set: 1/4\" = 1'. By it the line is 10.0.");
  EXPECT_TRUE(viewer.Marks().empty());
  EXPECT_TRUE(messages.texts.isEmpty()) << "the scale is just being set";
  EXPECT_EQ(Note(), "");
  Draw(180);
  EXPECT_EQ(viewer.Marks().size(), 1U) << "the next line is a mark again";
}

TEST_F(SheetScalesTest, AShrunkPlanHasAScaleOfItsOwn) {
  desk.UserFocus(ost.KnownDimension);
  desk.TypeText(ost.KnownDimension, "3.2 m");
  Click(ost.Calibrate);
  Draw(150);
  EXPECT_TRUE(ost.DimensionResult.Caption().contains("no usual scale"));
  viewer.DrawLine({100, 100}, {250, 100});
  EXPECT_EQ(ost.DistanceText.Text(), "10.5");
}

TEST_F(SheetScalesTest, WhatIsNoDimensionOrTooShortIsSaid) {
  Click(ost.Calibrate);
  EXPECT_TRUE(ost.DimensionResult.Caption().startsWith("Type a dimension"));
  EXPECT_EQ(desk.Focused(), &ost.KnownDimension);
  desk.TypeText(ost.KnownDimension, "10");
  Click(ost.Calibrate);
  Draw(20);
  EXPECT_TRUE(ost.DimensionResult.Caption().contains("too short"));
  EXPECT_EQ(Scale(), "No scale set");
  Click(ost.Calibrate);
  viewer.PickTool(PlanTool::Counting);
  viewer.PickTool(PlanTool::Measuring);
  Choose("Quarter");
  Draw(180);
  EXPECT_EQ(Scale(), "1/4\" = 1'") << "another tool gives it up";
}

TEST(ScaleFor, UsualScalesAndOthers) {
  EXPECT_EQ(ScaleFor(4.01).scale1, "1/4");
  EXPECT_EQ(ScaleFor(4.03).scale1, "1");
  EXPECT_EQ(ScaleFor(4.03).scale2, "4.03");
  EXPECT_EQ(ScaleFor(20).scale2, "20");
  EXPECT_EQ(FeetPerInch({"", "1", ""}), 0);
  EXPECT_EQ(FeetPerInch({"1/4", "0", ""}), 0);
  EXPECT_NEAR(FeetPerInch({"1", "50", QLatin1String(kMillimetreText)}), 1270, 1e-9);
}

TEST_F(SheetScalesTest, AScaleThatADimensionProvedStaysProvedWhenItComesBack) {
  Choose("Eighth");
  Measure();
  Enter(ost.KnownDimension, "20");
  Draw(180);
  ASSERT_EQ(Note(), "");
  for (const bool follows : {false, true}) {
    Turn(2);
    Choose("Twenty");
    if (follows) desk.ClickInto(ost.FollowSheet);
    Turn(1);
    if (!follows) Click(ost.TakeScale);
    EXPECT_EQ(Scale(), "1/8\" = 1'") << follows;
    EXPECT_EQ(Note(), "") << follows;
    EXPECT_FALSE(ost.TakeScale.Shown()) << follows;
  }
}

TEST_F(SheetScalesTest, AScaleThatWasUsedHereIsNotCalledPrinted) {
  Turn(4);
  Choose("Quarter");
  for (TextField* field : {&ost.Scale1, &ost.Scale2}) {
    desk.UserFocus(*field);
    field->SelectAll();
    desk.PressKey(*field, Key::Named(Key::Name::Backspace));
  }
  EXPECT_EQ(Note(), "On this sheet 1/4\" = 1' was used; no scale is set now.");
  EXPECT_TRUE(ost.TakeScale.Shown());
}

}  // namespace
}  // namespace tamo::test
