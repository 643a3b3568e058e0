#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>
#include <limits>

#include "plans/fraction.h"
#include "plans/pdfdraw.h"
#include "support/fakeplanengine.h"
#include "support/planstroke.h"

using namespace tamo;
using namespace tamo::test;

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
  QTemporaryDir folder;
  RealDisk disk;
  Files files{disk};
  FakePlanEngine engine;
  PdfDraw draw{files, engine};
  std::vector<double> lengths;
  std::vector<int> counts;
  std::vector<PlanTool> modes;
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
    draw.onModeChanged = [this](PlanTool mode) { modes.push_back(mode); };
    draw.onPageChanged = [this] { ++pages; };
    draw.onScrolled = [this] { ++scrolls; };
    draw.onMousePressed = [this] { ++presses; };
  }
  QString Path(const char* name) { return folder.filePath(QString::fromUtf8(name)); }
  int Open(const char* name) {
    QFile file(Path(name));
    EXPECT_TRUE(file.open(QIODevice::Append));
    file.close();
    return draw.OpenFile(Path(name), QString());
  }
  void Stroke(const char* name) {
    PlanStroke stroke;
    ASSERT_TRUE(PlanStrokeFromName(name, stroke)) << name;
    draw.Key(stroke);
  }
};

}  // namespace

TEST_F(Board, OpeningSetsInchesAndFeetAndRaisesPageButNotScroll) {
  draw.SetUnit(PaperUnit::Millimetres);
  draw.SetUnitName("mm");
  engine.pages = 3;
  EXPECT_EQ(Open("Floor2.PDF"), 0);
  EXPECT_EQ(draw.Unit(), PaperUnit::Inches);
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
  draw.SetUnit(PaperUnit::Centimetres);
  draw.SetUnitName("feet");
  EXPECT_EQ(draw.Unit(), PaperUnit::Centimetres);
}

TEST_F(Board, APressDragReleaseMeasuresInThePaperUnit) {
  draw.PickTool(PlanTool::Measuring);
  draw.Press({100, 100}, false);
  draw.Move({200, 100}, false);
  draw.Release({280, 100}, false);
  ASSERT_EQ(lengths.size(), 1U);
  EXPECT_DOUBLE_EQ(lengths[0], 2.5);
  ASSERT_EQ(draw.Marks().size(), 1U);
  EXPECT_EQ(draw.Marks()[0].label, "10.0 feet");
  EXPECT_EQ(presses, 1);
  draw.SetUnit(PaperUnit::Millimetres);
  draw.DrawLine({0, 0}, {0, 72});
  EXPECT_DOUBLE_EQ(lengths[1], 25.4);
  draw.SetUnit(PaperUnit::Centimetres);
  draw.DrawLine({0, 0}, {72, 0});
  EXPECT_DOUBLE_EQ(lengths[2], 2.54);
}

TEST_F(Board, TwoClicksMeasureToo) {
  draw.PickTool(PlanTool::Measuring);
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
  draw.PickTool(PlanTool::Measuring);
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
  draw.PickTool(PlanTool::Measuring);
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
  draw.PickTool(PlanTool::Measuring);
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

// Painting only reads: the running length is worked out when the line or the scale changes.
TEST_F(Board, LookingAtTheLineInWorkAsksNobody) {
  int asked = 0;
  draw.onLineRunning = [&](double& length, QString& label) {
    ++asked;
    length *= 4;
    label = "feet";
  };
  draw.PickTool(PlanTool::Measuring);
  draw.Press({100, 100}, false);
  draw.Move({172, 100}, false);
  const int before = asked;
  for (int i = 0; i < 3; ++i) EXPECT_EQ(draw.LineWork().text, "4.0 feet");
  EXPECT_EQ(asked, before);
  draw.onLineRunning = [&](double& length, QString& label) {
    length *= 8;
    label = "feet";
  };
  draw.ScaleChanged();
  EXPECT_EQ(draw.LineWork().text, "8.0 feet");
}

TEST_F(Board, AMarkHasThePenOfTheMomentItWasDrawn) {
  draw.onLineMeasured = [this](double&, QString&) { draw.SetMarkColour("000000255"); };
  draw.DrawLine({0, 0}, {72, 0});
  EXPECT_EQ(draw.Marks()[0].colour, "255000000");
}

TEST_F(Board, CirclesAreCountedOverAllPages) {
  engine.pages = 2;
  Open("a.pdf");
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
  draw.PickTool(PlanTool::Measuring);
  draw.PickTool(PlanTool::Measuring);
  draw.PickTool(PlanTool::None);
  EXPECT_EQ(modes,
            (std::vector<PlanTool>{PlanTool::Measuring, PlanTool::Measuring, PlanTool::None}));
  EXPECT_EQ(draw.Tool(), PlanTool::None);
}

TEST_F(Board, OpeningAPlanReleasesTheTool) {
  draw.PickTool(PlanTool::Measuring);
  Open("a.pdf");
  EXPECT_EQ(draw.Tool(), PlanTool::None);
  EXPECT_EQ(modes, (std::vector<PlanTool>{PlanTool::Measuring, PlanTool::None}));
}

TEST_F(Board, OnlyTheUsersScrollingRaisesScrolled) {
  draw.SetViewValue(ViewPart::Horizontal, 30);
  EXPECT_EQ(scrolls, 0);
  draw.ScrollBy(70, 50);
  EXPECT_EQ(scrolls, 1);
  EXPECT_EQ(draw.ViewValue(ViewPart::Horizontal), 100);
  EXPECT_EQ(draw.ViewValue(ViewPart::Vertical), 50);
  draw.ScrollBy(-1000, -1000);
  EXPECT_EQ(draw.ViewValue(ViewPart::Horizontal), 0);
  draw.ScrollBy(-1, 0);
  EXPECT_EQ(scrolls, 2);
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
  Open("a.pdf");
  draw.DrawLine({0, 0}, {72, 0});
  EXPECT_TRUE(draw.HasUnsavedMarks());
  EXPECT_EQ(draw.SaveAs(Path("b-Marked.pdf")), 0);
  EXPECT_EQ(draw.ShownFile(), "b-Marked.pdf");
  EXPECT_FALSE(draw.HasUnsavedMarks());
  Open("a.pdf");
  EXPECT_TRUE(draw.Marks().empty());
  Open("b-Marked.pdf");
  EXPECT_EQ(draw.Marks().size(), 1U);
}

TEST_F(Board, AFailedOpenShowsABlankSheetWithNothingToSave) {
  engine.openError = 57;
  EXPECT_EQ(Open("bad.pdf"), 57);
  EXPECT_EQ(draw.PageCount(), 1);
  EXPECT_EQ(draw.ShownFile(), "");
  EXPECT_FALSE(draw.Problem().isEmpty());
  EXPECT_EQ(draw.SaveAs(Path("x.pdf")), 53);
}
