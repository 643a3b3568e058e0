#include "plans/measuring.h"

#include "plans/ostfixture.h"
#include "plans/planname.h"
#include "records/markedplan.h"

namespace tamo::test {
namespace {

const ScaleTexts kQuarter = {QStringLiteral("1/4"), QStringLiteral("1"), QStringLiteral("\" = '")};
const ScaleTexts kFifty = {QStringLiteral("1"), QStringLiteral("50"),
                           QStringLiteral("mm =          ft")};

TEST(ScaledLine, QuarterInchMakesTenFeetOfTwoAndAHalfInches) {
  const MeasuredLine line =
      ScaledLine(2.5, 0.25, kQuarter, QStringLiteral("feet"), QStringLiteral("inches"));
  EXPECT_TRUE(line.scaled);
  EXPECT_DOUBLE_EQ(line.length, 10);
  EXPECT_EQ(line.label, "feet @ 1/4\"=1'");
}

TEST(ScaledLine, FiftyFeetAMillimetre) {
  const MeasuredLine line = ScaledLine(30, 1, kFifty, QStringLiteral("mm"), QStringLiteral("mm"));
  EXPECT_DOUBLE_EQ(line.length, 1500);
  EXPECT_EQ(line.label, "millimeter");
}

TEST(ScaledLine, CentimetresAreNamedWithTheScale) {
  const ScaleTexts scale = {QStringLiteral("1"), QStringLiteral("20"),
                            QStringLiteral("cm =          ft")};
  const MeasuredLine line = ScaledLine(2, 1, scale, QStringLiteral("cm"), QStringLiteral("cm"));
  EXPECT_DOUBLE_EQ(line.length, 40);
  EXPECT_EQ(line.label, "feet @ 1cm:20 feet");
}

TEST(ScaledLine, WithoutAScaleTheLengthStaysInPaperUnits) {
  for (const char* empty : {"", "   "}) {
    const ScaleTexts scale = {QLatin1String(empty), QStringLiteral("1"), QString()};
    const MeasuredLine line =
        ScaledLine(2.5, 0, scale, QStringLiteral("feet"), QStringLiteral("inches"));
    EXPECT_FALSE(line.scaled);
    EXPECT_DOUBLE_EQ(line.length, 2.5);
    EXPECT_EQ(line.label, "inches");
  }
}

TEST(ScaledLine, AScale2OfZeroActsAsNoScale) {
  for (const char* zero : {"0", "", "x", "0.0"}) {
    const ScaleTexts scale = {QStringLiteral("1/4"), QLatin1String(zero), QString()};
    const MeasuredLine line =
        ScaledLine(2.5, 0.25, scale, QStringLiteral("feet"), QStringLiteral("inches"));
    EXPECT_FALSE(line.scaled) << zero;
    EXPECT_DOUBLE_EQ(line.length, 2.5);
  }
}

TEST(ScaledLine, APlanLengthThatIsNoNumberLeavesTheLength) {
  const ScaleTexts scale = {QStringLiteral("abc"), QStringLiteral("1"), QString()};
  const MeasuredLine line =
      ScaledLine(2.5, 0, scale, QStringLiteral("feet"), QStringLiteral("inches"));
  EXPECT_TRUE(line.scaled) << "it is handed over all the same";
  EXPECT_DOUBLE_EQ(line.length, 2.5);
  EXPECT_EQ(line.label, "inches");
}

TEST(ZoomPerCent, IsTheWholePartOfStepTenthsAndThreeTenths) {
  const std::pair<double, int> steps[] = {{0, 30},   {1, 40},   {2, 50},   {3, 60},   {4, 70},
                                          {5, 80},   {6, 90},   {7, 100},  {8, 110},  {9, 120},
                                          {10, 130}, {11, 140}, {12, 150}, {2.55, 55}};
  for (const auto& [step, perCent] : steps) EXPECT_EQ(ZoomPerCent(step), perCent) << step;
  EXPECT_LE(ZoomPerCent(1e300), 1000000);
  EXPECT_GE(ZoomPerCent(-1e300), -1000000);
}

TEST(CheckInWords, SaysHowFarTheDimensionIsOff) {
  EXPECT_EQ(CheckInWords(10, 10), "Measured 10.0: the scale is right.");
  EXPECT_EQ(CheckInWords(11, 10), "Measured 11.0: 1.0 too long (10.0 per cent). Check the scale.");
  EXPECT_EQ(CheckInWords(9.5, 10), "Measured 9.5: 0.5 too short (5.0 per cent). Check the scale.");
  EXPECT_EQ(CheckInWords(10, 0),
            "Measured 10.0. Type the dimension that the plan states to compare.");
}

// --- Names of plans

TEST(PlanName, IsCutAtTheLastPointAndLosesOneMark) {
  EXPECT_EQ(PlanNameOf("E:\\Jobs\\Floor2.PDF"), "Floor2");
  EXPECT_EQ(PlanNameOf("/jobs/Floor2-Marked.pdf"), "Floor2");
  EXPECT_EQ(PlanNameOf("/jobs/A1.2 Level-Marked.pdf"), "A1.2 Level");
  EXPECT_EQ(PlanNameOf("/jobs/Floor-Marked-Marked.pdf"), "Floor-Marked");
  EXPECT_EQ(PlanNameOf("Floor"), "Floor");
  EXPECT_EQ(PlanNameOf(""), "");
}

TEST(PlanName, OfTheMarkedCopyIsTheOneThatTheRecordKeeps) {
  const ProjectFolder project("P/", "/");
  QString refusal;
  EXPECT_EQ(MarkedCopyOf("E:\\Jobs\\Floor2.PDF", project, refusal), "P/Plans/Floor2-Marked.pdf");
  EXPECT_EQ(MarkedCopyOf("/p/Floor2-Marked.pdf", project, refusal), "P/Plans/Floor2-Marked.pdf");
  EXPECT_EQ(MarkedCopyOf("/p/Floor2.PDF.pdf", project, refusal), "P/Plans/Floor2-Marked.pdf");
  EXPECT_EQ(MarkedCopyOf("/p/Floor2-Marked-Marked.pdf", project, refusal),
            "P/Plans/Floor2-Marked.pdf");
  EXPECT_EQ(MarkedCopyOf("/p/Floor-Marked-Up.pdf", project, refusal),
            "P/Plans/Floor-Marked-Up-Marked.pdf");
  EXPECT_TRUE(refusal.isEmpty());
  for (const char* path : {"/p/Floor2.tif", "/p/a.PDF.pdf-Marked.pdf", "/p/Floor-Marked.Rev.pdf"}) {
    const QString copy = MarkedCopyOf(path, project, refusal);
    EXPECT_EQ(MarkedPlanPath(copy, project), copy) << path << ": the record changes nothing";
  }
}

TEST(PlanName, ThatNoFileCanHaveIsRefusedWithAReason) {
  const ProjectFolder project("P/", "/");
  const QString names[] = {QStringLiteral("/p/"), QStringLiteral("/p/.pdf"),
                           QStringLiteral("/p/a\nb.pdf"),
                           QStringLiteral("/p/") + QString(300, QLatin1Char('x'))};
  for (const QString& name : names) {
    QString refusal;
    EXPECT_EQ(MarkedCopyOf(name, project, refusal), "") << name.toStdString();
    EXPECT_FALSE(refusal.isEmpty());
  }
  QString refusal;
  EXPECT_EQ(MarkedCopyOf("/p/...pdf", project, refusal), "P/Plans/..-Marked.pdf")
      << "dots within a name mean nothing";
}

TEST(PlanName, AboutIsKnownWhateverItsFolder) {
  EXPECT_TRUE(NamesAbout("/program/About.pdf"));
  EXPECT_TRUE(NamesAbout("C:\\x\\About-Marked.pdf"));
  EXPECT_TRUE(NamesAbout("/x/about.pdf"));
  EXPECT_FALSE(NamesAbout("/x/FloorAbout.pdf"));
  EXPECT_FALSE(NamesAbout(""));
}

TEST(PlanName, DoubleMarksAreCutBackToOne) {
  EXPECT_EQ(WithoutDoubleMark("/p/F-Marked-Marked.pdf"), "/p/F-Marked.pdf");
  EXPECT_EQ(WithoutDoubleMark("/p/F-Marked-Marked-Marked.pdf"), "/p/F-Marked.pdf");
  EXPECT_EQ(WithoutDoubleMark("/p/F-Marked.pdf"), "/p/F-Marked.pdf");
  EXPECT_EQ(WithoutDoubleMark("/F-Marked-Marked.pdf/G.pdf"), "/F-Marked-Marked.pdf/G.pdf");
}

}  // namespace
}  // namespace tamo::test
