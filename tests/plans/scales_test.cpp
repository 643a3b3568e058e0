#include "plans/scales.h"

#include "plans/ostfixture.h"

namespace tamo::test {
namespace {

constexpr char kQuoteText[] = "\" =             '";
constexpr char kMmText[] = "mm =          ft";
constexpr char kCmText[] = "cm =          ft";

struct Expected {
  const char* entry;
  const char* caption;
  const char* scale1;
  const char* scale2;
  const char* text5;
  const char* isScale;  // "" not set
};

// As the menu offers them. The two exceptions, OneHundred and OneSevenHundredFifty, have tests of
// their own.
constexpr Expected kEntries[] = {
    {"Sixteenth", "1/16\"", "1/16", "1", kQuoteText, "1/16\""},
    {"ThirtySecond", "3/32\"", "3/32", "1", kQuoteText, ""},
    {"Eighth", "1/8\"", "1/8", "1", kQuoteText, ""},
    {"ThreeSixteenth", "3/16\"", "3/16", "1", kQuoteText, ""},
    {"Quarter", "1/4\"", "1/4", "1", kQuoteText, "1/4\""},
    {"ThreeEighth", "3/8\"", "3/8", "1", kQuoteText, ""},
    {"Half", "1/2\"", "1/2", "1", kQuoteText, "1/2\""},
    {"ThreeQuarters", "3/4\"", "3/4", "1", kQuoteText, ""},
    {"Inch", "1\"", "1", "1", kQuoteText, "1\""},
    {"OneOneHalf", "1 1/2\"", "1 1/2", "1", kQuoteText, ""},
    {"OneThreeQuarters", "1 3/4\"", "1 3/4", "1", kQuoteText, ""},
    {"ThreeInch", "3\"", "3", "1", kQuoteText, ""},
    {"Twenty", "1\"=20'", "1", "20", kQuoteText, ""},
    {"TwoHundred", "1\"=200'", "1", "200", kQuoteText, ""},
    {"FiveHundred", "1\"=500'", "1", "500", kQuoteText, ""},
    {"OneOne", "1mm:1ft", "1", "1", kMmText, ""},
    {"OneFive", "1mm:5ft", "1", "5", kMmText, ""},
    {"OneTen", "1mm:10ft", "1", "10", kMmText, ""},
    {"OneTwenty", "1mm:20ft", "1", "20", kMmText, ""},
    {"OneFifty", "1mm:50ft", "1", "50", kMmText, ""},
    {"OneOneHundred", "1mm:100ft", "1", "100", kMmText, ""},
    {"OneOneTwentyFive", "1mm:125ft", "1", "125", kMmText, ""},
    {"OneOneFifty", "1mm:150ft", "1", "150", kMmText, ""},
    {"OneTwoHundred", "1mm:200ft", "1", "200", kMmText, ""},
    {"OneThreeHundred", "1mm:300ft", "1", "300", kMmText, ""},
    {"OneFourHundred", "1mm:400ft", "1", "400", kMmText, ""},
    {"OneFiveHundred", "1mm:500ft", "1", "500", kMmText, ""},
    {"OneSixHundred", "1mm:600ft", "1", "600", kMmText, ""},
    {"OneSevenHundred", "1mm:700ft", "1", "700", kMmText, ""},
    {"OneEightHundred", "1mm:800ft", "1", "800", kMmText, ""},
    {"OneOneC", "1cm:1ft", "1", "1", kCmText, ""},
    {"OneFiveC", "1cm:5ft", "1", "5", kCmText, ""},
    {"OneTenC", "1cm:10ft", "1", "10", kCmText, ""},
    {"OneTwentyC", "1cm:20ft", "1", "20", kCmText, ""},
    {"OneFiftyC", "1cm:50ft", "1", "50", kCmText, ""},
    {"OneOneHundredC", "1cm:100ft", "1", "100", kCmText, ""},
    {"OneOneTwentyFiveC", "1cm:125ft", "1", "125", kCmText, ""},
    {"OneOneFiftyC", "1cm:150ft", "1", "150", kCmText, ""},
    {"OneTwoHundredC", "1cm:200ft", "1", "200", kCmText, ""},
    {"OneThreeHundredC", "1cm:300ft", "1", "300", kCmText, ""},
    {"OneFourHundredC", "1cm:400ft", "1", "400", kCmText, ""},
    {"OneFiveHundredC", "1cm:500ft", "1", "500", kCmText, ""},
    {"OneSixHundredC", "1cm:600ft", "1", "600", kCmText, ""},
    {"OneSevenHundredC", "1cm:700ft", "1", "700", kCmText, ""},
    {"OneSevenHundredFiftyC", "1cm:750ft", "1", "750", kCmText, ""},
    {"OneEightHundredC", "1cm:800ft", "1", "800", kCmText, ""},
};

class ScaleMenu : public OstTest {};

TEST_F(ScaleMenu, EveryEntryWritesItsFields) {
  for (const Expected& entry : kEntries) {
    SCOPED_TRACE(entry.entry);
    ost.IsScale.SetText(QStringLiteral("before"));
    Choose(entry.entry);
    EXPECT_EQ(ost.FindMenu(entry.entry)->Caption().toStdString(), entry.caption);
    EXPECT_EQ(ost.Scale1.Text().toStdString(), entry.scale1);
    EXPECT_EQ(ost.Scale2.Text().toStdString(), entry.scale2);
    EXPECT_EQ(ost.Text5.Text().toStdString(), entry.text5);
    EXPECT_EQ(ost.IsScale.Text().toStdString(), *entry.isScale ? entry.isScale : "before");
    const bool metric = entry.text5[0] != '"';
    EXPECT_EQ(ost.FindMenu(entry.entry)->Parent()->Name().toStdString(),
              metric ? "Metric" : "ScaleA");
  }
}

TEST_F(ScaleMenu, AfterEveryEntryTheRecordHoldsAllThreeFields) {
  for (const Expected& entry : kEntries) {
    SCOPED_TRACE(entry.entry);
    keeper.record = {};
    Choose(entry.entry);
    EXPECT_EQ(keeper.record.scale1.toStdString(), entry.scale1);
    EXPECT_EQ(keeper.record.scale2.toStdString(), entry.scale2);
    EXPECT_EQ(keeper.record.text5.toStdString(), entry.text5);
  }
  Choose("OneOne");
  Choose("Inch");  // only the unit text differs
  EXPECT_EQ(keeper.record.text5.toStdString(), kQuoteText);
}

TEST_F(ScaleMenu, EachChangedNumberSavesOnce) {
  Choose("Quarter");
  keeper.saves = 0;
  Choose("Half");
  EXPECT_EQ(keeper.saves, 1);
  Choose("OneFifty");
  EXPECT_EQ(keeper.saves, 3) << "both numbers changed";
  Choose("OneFifty");
  EXPECT_EQ(keeper.saves, 4) << "nothing changed, and the record is brought up all the same";
}

TEST_F(ScaleMenu, NothingIsSavedWhileARecordIsRead) {
  shared.LoadingJobNFO = QStringLiteral("True");
  Choose("Quarter");
  EXPECT_EQ(keeper.asked, 0);
}

TEST_F(ScaleMenu, OneHundredKeepsTheUnitTextThatStood) {
  Choose("OneHundred");
  EXPECT_EQ(ost.Scale1.Text(), "1");
  EXPECT_EQ(ost.Scale2.Text(), "100");
  EXPECT_EQ(ost.Text5.Text(), "");
  Choose("Quarter");
  Choose("OneHundred");
  EXPECT_EQ(ost.Text5.Text().toStdString(), kQuoteText);
}

TEST_F(ScaleMenu, OneHundredAfterAMetricScaleStaysOnMillimetres) {
  Choose("OneFifty");
  Choose("OneHundred");
  EXPECT_EQ(ost.Text5.Text().toStdString(), kMmText);
  EXPECT_EQ(viewer.Unit(), PaperUnit::Millimetres);
  EXPECT_EQ(ost.Scale2.Text(), "100");
  EXPECT_EQ(keeper.record.text5.toStdString(), kMmText);
  EXPECT_EQ(ost.ScaleInForce.Caption(), "1\" = 100' - viewer still in mm");
  EXPECT_TRUE(ost.SetInches.Shown());
}

TEST_F(ScaleMenu, OneSevenHundredFiftyChangesNothing) {
  Choose("Quarter");
  keeper.asked = 0;
  Choose("OneSevenHundredFifty");
  EXPECT_EQ(ost.Scale1.Text(), "1/4");
  EXPECT_EQ(ost.Scale2.Text(), "1");
  EXPECT_EQ(ost.Text5.Text().toStdString(), kQuoteText);
  EXPECT_EQ(ost.IsScale.Text(), "1/4\"");
  EXPECT_EQ(keeper.asked, 0);
  EXPECT_EQ(ost.FindMenu("OneSevenHundredFifty")->Caption(), "1mm:750ft");
  Choose("OneSevenHundredFiftyC");
  EXPECT_EQ(ost.Scale2.Text(), "750");
}

TEST_F(ScaleMenu, TheUnitTextSetsTheViewersUnit) {
  Choose("OneFifty");
  EXPECT_EQ(viewer.Unit(), PaperUnit::Millimetres);
  EXPECT_EQ(viewer.UnitName(), "mm");
  Choose("OneFiftyC");
  EXPECT_EQ(viewer.Unit(), PaperUnit::Centimetres);
  EXPECT_EQ(viewer.UnitName(), "cm");
  EXPECT_EQ(ost.ScaleInForce.Caption(), "1 cm = 50 ft");
  EXPECT_FALSE(ost.SetInches.Shown());
}

TEST_F(ScaleMenu, AnInchScaleAfterAMetricOneLeavesTheViewerInMillimetresAndSaysSo) {
  Choose("OneFifty");
  Choose("Quarter");
  EXPECT_EQ(viewer.Unit(), PaperUnit::Millimetres);
  EXPECT_EQ(viewer.UnitName(), "mm");
  EXPECT_EQ(ost.ScaleInForce.Caption(), "1/4\" = 1' - viewer still in mm");
  ASSERT_TRUE(ost.SetInches.Shown());
  Click(ost.SetInches);
  EXPECT_EQ(viewer.Unit(), PaperUnit::Inches);
  EXPECT_EQ(viewer.UnitName(), "feet");
  EXPECT_EQ(ost.ScaleInForce.Caption(), "1/4\" = 1'");
  EXPECT_FALSE(ost.SetInches.Shown());
}

TEST_F(ScaleMenu, SetInchesAfterOneHundredAlsoCorrectsTheRecord) {
  Choose("OneFifty");
  Choose("OneHundred");
  Click(ost.SetInches);
  EXPECT_EQ(viewer.Unit(), PaperUnit::Inches);
  EXPECT_EQ(keeper.record.text5.toStdString(), kQuoteText);
  EXPECT_EQ(ost.ScaleInForce.Caption(), "1\" = 100'");
}

TEST_F(ScaleMenu, WithoutAScaleItSaysSo) {
  EXPECT_EQ(ost.ScaleInForce.Caption(), "No scale set");
  Choose("Quarter");
  EXPECT_EQ(ost.ScaleInForce.Caption(), "1/4\" = 1'");
  Enter(ost.Scale2, "0");
  EXPECT_EQ(ost.ScaleInForce.Caption(), "No scale set");
}

TEST_F(ScaleMenu, TheMetricEntriesStandOnTheirSubmenuInOrder) {
  const MenuEntry* metric = ost.FindMenu("Metric");
  ASSERT_EQ(metric->Children().size(), 32U);
  EXPECT_EQ(metric->Children().front()->Name(), "OneOne");
  EXPECT_EQ(metric->Children()[16]->Name(), "OneOneC");
  const MenuEntry* scales = ost.FindMenu("ScaleA");
  ASSERT_EQ(scales->Children().size(), 17U);
  EXPECT_EQ(scales->Children()[12]->Name(), "Twenty");
  EXPECT_EQ(scales->Children()[13]->Caption(), "1\"=100'");
  EXPECT_EQ(scales->Children().back()->Name(), "Metric");
}

}  // namespace
}  // namespace tamo::test
