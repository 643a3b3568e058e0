#include "plans/ostfixture.h"

namespace tamo::test {
namespace {

// What is measured on the plan, and into which field of the takeoff it goes.
class HandOver : public OstTest {
 protected:
  HandOver() {
    viewer.OpenFile(Path("Jobs/a.pdf"), {});
    Choose("Quarter");
  }
  // 2.5 inches of paper are 180 points.
  void Draw(double points) { viewer.DrawLine({100, 100}, {100 + points, 100}); }
  void WaitFor(const char* code) { shared.IAmHere = QLatin1String(code); }
};

TEST_F(HandOver, TwoAndAHalfInchesAtAQuarterInchAreTenFeet) {
  WaitFor("RL");
  Draw(180);
  EXPECT_EQ(ost.DistanceText.Text(), "10.0");
  EXPECT_EQ(takeoff.Take(), (QStringList{"Length=10.0", "focus Length"}));
  EXPECT_EQ(viewer.Marks()[0].label, "10.0 feet @ 1/4\"=1'");
}

TEST_F(HandOver, ThirtyMillimetresAtFiftyFeetAre1500) {
  Choose("OneFifty");
  WaitFor("RL");
  Draw(30 / 25.4 * 72);
  EXPECT_EQ(ost.DistanceText.Text(), "1,500.0");
  EXPECT_EQ(takeoff.Take(), (QStringList{"Length=1,500.0", "focus Length"}));
  EXPECT_EQ(viewer.Marks()[0].label, "1,500.0 millimeter");
  EXPECT_EQ(viewer.UnitName(), "mm");
}

TEST_F(HandOver, TwoCentimetresAtTwentyFeetAreForty) {
  Choose("OneTwentyC");
  WaitFor("RL");
  Draw(2 / 2.54 * 72);
  EXPECT_EQ(ost.DistanceText.Text(), "40.0");
  EXPECT_EQ(viewer.Marks()[0].label, "40.0 feet @ 1cm:20 feet");
}

TEST_F(HandOver, EveryScaleMeasuresTrue) {
  WaitFor("RL");
  for (const auto scales : {InchScales(), MillimetreScales(), CentimetreScales()}) {
    for (const ScaleEntry& scale : scales) {
      if (!scale.acts || scale.text5 == nullptr) continue;
      viewer.OpenFile(Path("Jobs/a.pdf"), {});  // sets inches
      Choose(scale.name);
      Draw(72);
      const double paper = scale.text5[0] == 'm' ? 25.4 : scale.text5[0] == 'c' ? 2.54 : 1;
      const double feet =
          paper / viewer.EvaluateFraction(scale.scale1) * QString(scale.scale2).toDouble();
      EXPECT_EQ(ost.DistanceText.Text(), LengthText(feet)) << scale.name;
    }
  }
}

TEST_F(HandOver, EachCodeReachesItsField) {
  const std::pair<const char*, const char*> codes[] = {
      {"EL", "eLength"}, {"EH", "Hite"}, {"RL", "Length"}, {"RH", "How"}};
  for (const auto& [code, field] : codes) {
    WaitFor(code);
    Draw(180);
    const QString name = QLatin1String(field);
    EXPECT_EQ(takeoff.Take(), (QStringList{name + "=10.0", "focus " + name}));
  }
}

TEST_F(HandOver, OtherCodesReceiveNothing) {
  for (const char* code : {"RR", "RD", "", "rl"}) {
    WaitFor(code);
    Draw(180);
    EXPECT_TRUE(takeoff.Take().isEmpty()) << code;
    EXPECT_EQ(ost.DistanceText.Text(), "10.0");
  }
}

TEST_F(HandOver, AHiddenFormGetsTheTextWithoutTheFocus) {
  takeoff.visible = false;
  WaitFor("EL");
  Draw(180);
  EXPECT_EQ(takeoff.Take(), QStringList{"eLength=10.0"});
}

TEST_F(HandOver, ALengthOfZeroKeepsTheFieldsOfTheFreeItemsAndReachesThoseOfTheRoom) {
  WaitFor("EL");
  Draw(0.5);  // 0.03 feet
  EXPECT_EQ(ost.DistanceText.Text(), "0.0");
  EXPECT_EQ(takeoff.Take(), QStringList{"focus eLength"});
  WaitFor("EH");
  Draw(0.5);
  EXPECT_EQ(takeoff.Take(), QStringList{"focus Hite"});
  WaitFor("RL");
  Draw(0.5);
  EXPECT_EQ(takeoff.Take(), (QStringList{"Length=0.0", "focus Length"}));
  WaitFor("RH");
  Draw(0.5);
  EXPECT_EQ(takeoff.Take(), (QStringList{"How=0.0", "focus How"}));
}

TEST_F(HandOver, AnEmptyScaleGivesNoTextAndKeepsTheOldValue) {
  WaitFor("RL");
  Draw(180);
  takeoff.Take();
  ost.Scale1.SetText("  ");
  Draw(360);
  EXPECT_EQ(ost.DistanceText.Text(), "10.0");
  EXPECT_TRUE(takeoff.Take().isEmpty());
  EXPECT_EQ(viewer.Marks()[0].label, "5.0 inches") << "the length stays in paper units";
}

TEST_F(HandOver, AScale2OfZeroActsAsAnEmptyScale) {
  WaitFor("RL");
  ost.DistanceText.SetText("7.0");
  ost.Scale2.SetText("0");
  Draw(180);
  EXPECT_EQ(ost.DistanceText.Text(), "7.0");
  EXPECT_TRUE(takeoff.Take().isEmpty());
  EXPECT_EQ(viewer.Marks()[0].label, "2.5 inches");
}

TEST_F(HandOver, APressWithoutAScaleAsksForOneAndMeasuringGoesOn) {
  ost.Scale1.SetText("");
  Draw(180);
  EXPECT_EQ(messages.texts, QStringList{"Set scale to a non-zero value."});
  EXPECT_EQ(viewer.Marks().size(), 1U);
  messages.texts.clear();
  ost.Scale1.SetText("1/4");
  ost.Scale2.SetText("0");
  viewer.Press({5, 5}, false);
  EXPECT_EQ(messages.texts, QStringList{"Set scale to a non-zero value."});
  messages.texts.clear();
  ost.Scale2.SetText("1");
  viewer.Press({5, 5}, false);
  EXPECT_TRUE(messages.texts.isEmpty());
}

TEST_F(HandOver, APressOnThePlanGivesItTheFocus) {
  desk.UserFocus(ost.PageText);
  viewer.Press({5, 5}, false);
  EXPECT_EQ(desk.Focused(), &ost.picPdfDraw);
}

TEST_F(HandOver, ACountIsACountWhateverTheScale) {
  WaitFor("RL");
  viewer.PlaceCircle({50, 50});
  EXPECT_EQ(ost.DistanceText.Text(), "1");
  viewer.PlaceCircle({60, 60});
  EXPECT_EQ(ost.DistanceText.Text(), "2");
  EXPECT_EQ(takeoff.Take(), (QStringList{"Length=1", "focus Length", "Length=2", "focus Length"}));
}

TEST_F(HandOver, ACountOfZeroReachesELengthAndNotHite) {
  viewer.PlaceCircle({50, 50});
  takeoff.Take();
  WaitFor("EL");
  viewer.DeleteMark(0);
  EXPECT_EQ(takeoff.Take(), (QStringList{"eLength=0", "focus eLength"}));
  WaitFor("RR");
  viewer.PlaceCircle({50, 50});
  WaitFor("EH");
  viewer.DeleteMark(0);
  EXPECT_EQ(takeoff.Take(), QStringList{"focus Hite"});
}

TEST_F(HandOver, EnterOnThePlanReturnsTheFocus) {
  WaitFor("RH");
  viewer.Key({PlanKey::Enter});
  EXPECT_EQ(takeoff.Take(), QStringList{"focus How"});
  takeoff.visible = false;
  viewer.Key({PlanKey::Enter});
  EXPECT_TRUE(takeoff.Take().isEmpty());
  takeoff.visible = true;
  WaitFor("RD");
  viewer.Key({PlanKey::Enter});
  EXPECT_TRUE(takeoff.Take().isEmpty());
}

TEST_F(HandOver, TheRunningLengthHandsNothingOver) {
  WaitFor("RL");
  viewer.PickTool(PlanTool::Measuring);
  viewer.Press({100, 100}, false);
  viewer.Move({280, 100}, false);
  EXPECT_EQ(viewer.LineWork().text, "10.0 feet @ 1/4\"=1'");
  EXPECT_TRUE(takeoff.Take().isEmpty());
  EXPECT_EQ(ost.DistanceText.Text(), "");
}

TEST_F(HandOver, ClearDistanceAndClearXY) {
  ost.DistanceText.SetText("10.0");
  ost.ClearDistance();
  EXPECT_EQ(ost.DistanceText.Text(), "");
  ost.Mode.SetText("Measuring");
  ost.ClearXY();
  EXPECT_EQ(ost.Mode.Text(), "Released");
}

TEST_F(HandOver, OneHundredAfterMillimetresMeasuresInMillimetres) {
  Choose("OneFifty");
  Choose("OneHundred");
  WaitFor("RL");
  Draw(72);
  EXPECT_EQ(ost.DistanceText.Text(), "2,540.0");
}

TEST_F(HandOver, AScaleThatIsNoNumberHandsOverThePaperLength) {
  WaitFor("RL");
  ost.Scale1.SetText("abc");
  Draw(180);
  EXPECT_EQ(takeoff.Take(), (QStringList{"Length=2.5", "focus Length"}));
}

// --- Check a dimension

TEST_F(HandOver, ACheckMeasuresWithoutAMark) {
  WaitFor("RL");
  desk.UserFocus(ost.KnownDimension);
  desk.TypeText(ost.KnownDimension, "8");
  Click(ost.CheckDimension);
  EXPECT_EQ(viewer.Tool(), PlanTool::Measuring);
  EXPECT_EQ(desk.Focused(), &ost.picPdfDraw);
  Draw(180);
  EXPECT_TRUE(viewer.Marks().empty());
  EXPECT_TRUE(takeoff.Take().isEmpty());
  EXPECT_EQ(ost.DistanceText.Text(), "");
  EXPECT_EQ(ost.DimensionResult.Caption(),
            "Measured 10.0: 2.0 too long (25.0 per cent). Check the scale.");
  Draw(180);
  EXPECT_EQ(viewer.Marks().size(), 1U) << "the next line is a mark again";
}

TEST_F(HandOver, EnterInTheKnownDimensionStartsTheCheck) {
  Enter(ost.KnownDimension, "10");
  Draw(180);
  EXPECT_EQ(ost.DimensionResult.Caption(), "Measured 10.0: the scale is right.");
}

TEST_F(HandOver, ACheckWithoutAScaleAsksForOne) {
  ost.Scale1.SetText("");
  Click(ost.CheckDimension);
  EXPECT_EQ(ost.DimensionResult.Caption(), "Choose a scale first.");
  EXPECT_FALSE(viewer.CheckNext());
}

}  // namespace
}  // namespace tamo::test
