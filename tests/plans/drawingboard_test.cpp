#include <gtest/gtest.h>

#include <limits>

#include "plans/fakepdfdraw.h"
#include "plans/fraction.h"

using namespace tamo;

// --- Fractions of scales

TEST(Fraction, TakesWholeNumbersFractionsAndBoth) {
  EXPECT_DOUBLE_EQ(FractionValue("1/16"), 0.0625);
  EXPECT_DOUBLE_EQ(FractionValue("3/32"), 0.09375);
  EXPECT_DOUBLE_EQ(FractionValue("1"), 1);
  EXPECT_DOUBLE_EQ(FractionValue("3"), 3);
  EXPECT_DOUBLE_EQ(FractionValue("1 1/2"), 1.5);
  EXPECT_DOUBLE_EQ(FractionValue(" 1  3/4 "), 1.75);
  EXPECT_DOUBLE_EQ(FractionValue("0.5"), 0.5);
}

TEST(Fraction, AnythingElseIsZeroAndNeverAnInfinity) {
  for (const char* text : {"", " ", "1/0", "x", "1/2/3", "1 2 3/4", "-1", "1e3", "1/", "/2", "1 x",
                           ".", "1/.", "99999999999999999999"}) {
    bool ok = true;
    EXPECT_EQ(FractionValue(text, &ok), 0) << text;
    EXPECT_FALSE(ok) << text;
  }
}

// --- Length as text

TEST(LengthText, HasOneDecimalAndThousandsCommas) {
  EXPECT_EQ(LengthText(10), "10.0");
  EXPECT_EQ(LengthText(1500), "1,500.0");
  EXPECT_EQ(LengthText(1234567.85), "1,234,567.9");
  EXPECT_EQ(LengthText(0), "0.0");
  EXPECT_EQ(LengthText(0.05), "0.1");
  EXPECT_EQ(LengthText(999.95), "1,000.0");
  EXPECT_EQ(LengthText(-0.01), "0.0");
  EXPECT_EQ(LengthText(std::numeric_limits<double>::infinity()), "0.0");
}

TEST(ColourNumber, TakesThreePartsOfThreeDigits) {
  EXPECT_EQ(ColourNumber("255000128"), 0xff0080U);
  EXPECT_EQ(ColourNumber("999000000"), 0xff0000U);
  EXPECT_EQ(ColourNumber("red"), 0U);
}

// --- The board

namespace {

struct Board : ::testing::Test {
  FakePdfDraw draw;
  std::vector<double> lengths;
  std::vector<int> counts;
  std::vector<int> modes;
  int pages = 0;
  int scrolls = 0;
  int presses = 0;

  void SetUp() override {
    draw.onLineMeasured = [this](double& length, QString& label) {
      lengths.push_back(length);
      length *= 4;
      label = "feet";
    };
    draw.onCircleCountChanged = [this](int count) { counts.push_back(count); };
    draw.onModeChanged = [this](int mode) { modes.push_back(mode); };
    draw.onPageChanged = [this] { ++pages; };
    draw.onScrolled = [this] { ++scrolls; };
    draw.onMousePressed = [this] { ++presses; };
  }
  void Stroke(const char* name) {
    PlanStroke stroke;
    ASSERT_TRUE(PlanStrokeFromName(name, stroke)) << name;
    draw.Key(stroke);
  }
};

}  // namespace

TEST_F(Board, OpeningSetsInchesAndFeetAndRaisesPageButNotScroll) {
  draw.SetUnitIndex(2);
  draw.SetUnitName("mm");
  draw.pagesOfNewFile = 3;
  EXPECT_EQ(draw.OpenFile("/plans/Floor2.PDF", ""), 0);
  EXPECT_EQ(draw.UnitIndex(), 0);
  EXPECT_EQ(draw.UnitName(), "feet");
  EXPECT_EQ(draw.PageCount(), 3);
  EXPECT_EQ(pages, 1);
  EXPECT_EQ(scrolls, 0);
  EXPECT_EQ(draw.ShownFile(), "Floor2.PDF");
  draw.SetPage(2);
  draw.SetZoom(130);
  EXPECT_EQ(pages, 2);
  EXPECT_EQ(scrolls, 0);
  draw.SetPage(9);
  EXPECT_EQ(draw.Page(), 3);
}

TEST_F(Board, SettingTheUnitNameLeavesTheIndex) {
  draw.SetUnitIndex(1);
  draw.SetUnitName("feet");
  EXPECT_EQ(draw.UnitIndex(), 1);
}

TEST_F(Board, APressDragReleaseMeasuresInThePaperUnit) {
  draw.PickTool(1);
  draw.Press({100, 100}, false);
  draw.Move({200, 100}, false);
  draw.Release({280, 100}, false);
  ASSERT_EQ(lengths.size(), 1U);
  EXPECT_DOUBLE_EQ(lengths[0], 2.5);
  ASSERT_EQ(draw.Marks().size(), 1U);
  EXPECT_EQ(draw.Marks()[0].label, "10.0 feet");
  EXPECT_EQ(presses, 1);
  draw.SetUnitIndex(2);
  draw.DrawLine({0, 0}, {0, 72});
  EXPECT_DOUBLE_EQ(lengths[1], 25.4);
  draw.SetUnitIndex(1);
  draw.DrawLine({0, 0}, {72, 0});
  EXPECT_DOUBLE_EQ(lengths[2], 2.54);
}

TEST_F(Board, TwoClicksMeasureToo) {
  draw.PickTool(1);
  draw.Press({10, 10}, false);
  draw.Release({10, 11}, false);
  EXPECT_TRUE(lengths.empty());
  draw.Move({50, 60}, false);
  EXPECT_TRUE(draw.LineWork().active);
  draw.Press({82, 10}, false);
  draw.Release({82, 10}, false);
  ASSERT_EQ(lengths.size(), 1U);
  EXPECT_DOUBLE_EQ(lengths[0], 1);
  EXPECT_FALSE(draw.LineWork().active);
}

TEST_F(Board, ShiftKeepsToStepsOf45Degrees) {
  draw.PickTool(1);
  draw.Press({100, 100}, false);
  draw.Move({200, 110}, true);
  EXPECT_DOUBLE_EQ(draw.LineWork().to.y, 100);
  draw.Move({110, 10}, true);
  EXPECT_DOUBLE_EQ(draw.LineWork().to.x, 100);
  draw.Move({60, 150}, true);
  EXPECT_DOUBLE_EQ(draw.LineWork().to.x, 55);
  EXPECT_DOUBLE_EQ(draw.LineWork().to.y, 145);
}

TEST_F(Board, EscapeAndBackspaceDropTheLineInWork) {
  draw.PickTool(1);
  for (const char* key : {"Escape", "Backspace"}) {
    draw.Press({10, 10}, false);
    draw.Release({10, 10}, false);
    EXPECT_TRUE(draw.LineWork().active);
    Stroke(key);
    EXPECT_FALSE(draw.LineWork().active);
  }
  EXPECT_TRUE(draw.Marks().empty());
}

TEST_F(Board, APlanIsMeasuredWithTheKeysAlone) {
  draw.PickTool(1);
  Stroke("Space");
  for (int i = 0; i < 20; ++i) Stroke("Right");
  EXPECT_EQ(draw.LineWork().text, "2.5 inches");
  Stroke("Space");
  ASSERT_EQ(lengths.size(), 1U);
  EXPECT_DOUBLE_EQ(lengths[0], 2.5);
  const PagePoint before = draw.CrossHair();
  Stroke("Ctrl+Down");
  EXPECT_DOUBLE_EQ(draw.CrossHair().y, before.y + 0.5);
}

TEST_F(Board, CirclesAreCountedOverAllPages) {
  draw.pagesOfNewFile = 2;
  draw.OpenFile("a.pdf", "");
  draw.PlaceCircle({20, 20});
  draw.SetPage(2);
  draw.PlaceCircle({20, 20});
  EXPECT_EQ(counts, (std::vector<int>{1, 2}));
  draw.DeleteMark(0);
  EXPECT_EQ(counts.back(), 1);
  EXPECT_EQ(draw.Marks()[0].page, 1);
}

TEST_F(Board, MarksAreListedNewestFirstTakenBackAndBroughtBack) {
  draw.DrawLine({0, 0}, {72, 0});
  draw.DrawLine({0, 0}, {144, 0});
  EXPECT_EQ(draw.Marks()[0].label, "8.0 feet");
  Stroke("Ctrl+Z");
  ASSERT_EQ(draw.Marks().size(), 1U);
  EXPECT_EQ(draw.Marks()[0].label, "4.0 feet");
  Stroke("Ctrl+Y");
  EXPECT_EQ(draw.Marks()[0].label, "8.0 feet");
  draw.DeleteMark(0);
  EXPECT_EQ(draw.Marks().size(), 1U);
  Stroke("Ctrl+Z");
  EXPECT_EQ(draw.Marks()[0].label, "8.0 feet");
  draw.DeleteMark(7);
  EXPECT_EQ(draw.Marks().size(), 2U);
}

TEST_F(Board, PickingTheToolAgainRaisesTheModeAgain) {
  draw.PickTool(1);
  draw.PickTool(1);
  draw.PickTool(0);
  EXPECT_EQ(modes, (std::vector<int>{1, 1, 0}));
  draw.PickTool(5);
  EXPECT_EQ(draw.Tool(), 0);
}

TEST_F(Board, OpeningAPlanReleasesTheTool) {
  draw.PickTool(1);
  draw.OpenFile("a.pdf", "");
  EXPECT_EQ(draw.Tool(), 0);
  EXPECT_EQ(modes, (std::vector<int>{1, 0}));
}

TEST_F(Board, OnlyTheUsersScrollingRaisesScrolled) {
  draw.SetViewValue(0, 30);
  EXPECT_EQ(scrolls, 0);
  draw.ScrollBy(70, 50);
  EXPECT_EQ(scrolls, 1);
  EXPECT_EQ(draw.ViewValue(0), 100);
  EXPECT_EQ(draw.ViewValue(1), 50);
  draw.ScrollBy(-1000, -1000);
  EXPECT_EQ(draw.ViewValue(0), 0);
  draw.ScrollBy(-1, 0);
  EXPECT_EQ(scrolls, 2);
  draw.SetViewValue(7, 3);
  EXPECT_EQ(draw.ViewValue(7), 0);
}

TEST_F(Board, ACheckedDimensionLeavesNoMark) {
  double checked = 0;
  draw.onLineChecked = [&](double length) { checked = length; };
  draw.SetCheckNext(true);
  draw.DrawLine({0, 0}, {36, 0});
  EXPECT_DOUBLE_EQ(checked, 0.5);
  EXPECT_TRUE(draw.Marks().empty());
  EXPECT_FALSE(draw.HasUnsavedMarks());
  draw.DrawLine({0, 0}, {36, 0});
  EXPECT_EQ(draw.Marks().size(), 1U);
}

TEST_F(Board, ALineOfNoLengthIsMeasuredAsZero) {
  draw.DrawLine({50, 50}, {50, 50});
  ASSERT_EQ(lengths.size(), 1U);
  EXPECT_EQ(lengths[0], 0);
}

TEST_F(Board, NotANumberIsPassedOver) {
  const double nan = std::numeric_limits<double>::quiet_NaN();
  draw.DrawLine({nan, 0}, {1, 1});
  draw.PlaceCircle({0, nan});
  draw.ScrollBy(nan, 0);
  draw.SetMarkWidth(nan);
  EXPECT_TRUE(draw.Marks().empty());
  EXPECT_DOUBLE_EQ(draw.MarkWidth(), 0.75);
}

TEST_F(Board, SavedMarksComeBack) {
  draw.OpenFile("a.pdf", "");
  draw.DrawLine({0, 0}, {72, 0});
  EXPECT_TRUE(draw.HasUnsavedMarks());
  EXPECT_EQ(draw.SaveAs("b-Marked.pdf"), 0);
  EXPECT_EQ(draw.ShownFile(), "b-Marked.pdf");
  EXPECT_FALSE(draw.HasUnsavedMarks());
  draw.OpenFile("a.pdf", "");
  EXPECT_TRUE(draw.Marks().empty());
  draw.OpenFile("b-Marked.pdf", "");
  EXPECT_EQ(draw.Marks().size(), 1U);
}

TEST_F(Board, AFailedOpenShowsABlankSheetWithNothingToSave) {
  draw.openResult = 57;
  EXPECT_EQ(draw.OpenFile("bad.pdf", ""), 57);
  EXPECT_EQ(draw.PageCount(), 1);
  EXPECT_EQ(draw.ShownFile(), "");
  EXPECT_FALSE(draw.Problem().isEmpty());
  EXPECT_EQ(draw.SaveAs("x.pdf"), 53);
}
