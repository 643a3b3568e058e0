// The free takeoff.

#include "takeoff/takeoffbench.h"

namespace tamo::test {
namespace {

#define S QStringLiteral

TEST_F(AreasTest, TheEntryShowsTheFormAtArea) {
  EnterItems();
  EXPECT_EQ(ato.Caption(), S("Estimating"));
  EXPECT_EQ(FocusName(), S("EstimateForm.Area"));
  EXPECT_TRUE(ato.AreasList.Shown());
}

TEST_F(AreasTest, ActivationWithNoProjectGoesToThePanel) {
  shared.JobID.clear();
  EnterItems();
  EXPECT_FALSE(ato.Visible());
  EXPECT_EQ(shell.calls, (QStringList{S("main"), S("panel")}));
}

TEST_F(AreasTest, AnAreaIsEnteredFromNothing) {
  StartArea(S("North wing"));
  EXPECT_EQ(Areas(), (QStringList{S("North wing"), S("True")}));
  EXPECT_EQ(FocusName(), S("EstimateForm.eDescription"));
  Enter(S("Rubber Base"));
  EXPECT_EQ(FocusName(), S("EstimateForm.eLength"));
  EXPECT_EQ(shared.IAmHere, S("EL"));
  EXPECT_EQ(ato.LengthLabel.Caption(), S("Length:"));
  EXPECT_EQ(plan.tool, 1);
  EXPECT_FALSE(Exists(Project(S("ATOs/North wing.ato"))));  // a new line waits for its first entry
  Enter(S("40"));
  EXPECT_EQ(Area(S("North wing")), QStringList{ALine(S("Rubber Base"), S("40"), S("LF"))});
  EXPECT_EQ(FocusName(), S("EstimateForm.eLength"));
  EXPECT_EQ(plan.calls.last(), S("save"));
  Enter(QString());
  EXPECT_EQ(FocusName(), S("EstimateForm.eDescription"));
  EXPECT_TRUE(ato.eDescription.Empty());
  Enter(S("HM Door"));
  EXPECT_EQ(ato.LengthLabel.Caption(), S("How many:"));
  EXPECT_EQ(plan.tool, 2);
  Enter(S("3"));
  Enter(QString());
  Enter(S("Wall Paint"));
  EXPECT_EQ(FocusName(), S("EstimateForm.Hite"));
  EXPECT_EQ(shared.IAmHere, S("EH"));
  Enter(S("9"));
  EXPECT_EQ(FocusName(), S("EstimateForm.eLength"));
  Enter(S("10.5"));
  EXPECT_EQ(Area(S("North wing")), (QStringList{ALine(S("Rubber Base"), S("40"), S("LF")),
                                                ALine(S("HM Door"), S("3"), S("EA")),
                                                ALine(S("Wall Paint"), S("95"), S("SF"))}));
  EXPECT_EQ(ato.Lengths.Rows(), QStringList{S("9 X 10.5")});
}

TEST_F(AreasTest, EnterOnAnEmptyAreaHidesTheForm) {
  EnterItems();
  Press(Key::Name::Enter);
  EXPECT_FALSE(ato.Visible());
  EXPECT_FALSE(Exists(Project(S("ATOs/Areas.tamo"))));
}

TEST_F(AreasTest, EvenALengthIsRoundedAtEachEntry) {
  StartArea(S("A"));
  Enter(S("Rubber Base"));
  Enter(S("12.4"));
  EXPECT_EQ(Area(S("A")), QStringList{ALine(S("Rubber Base"), S("12"), S("LF"))});
  Enter(S("0.4"));
  EXPECT_EQ(Area(S("A")), QStringList{ALine(S("Rubber Base"), S("12"), S("LF"))});
  EXPECT_EQ(ato.Lengths.Rows(), (QStringList{S("      12.4"), S("       0.4")}));
}

TEST_F(AreasTest, HiteIsEmptyAfterEachLineAndBlankGoesBack) {
  StartArea(S("A"));
  Enter(S("Wall Paint"));
  Enter(S("8"));
  Enter(S("10"));
  Enter(QString());
  EXPECT_EQ(FocusName(), S("EstimateForm.Hite"));
  EXPECT_TRUE(ato.Hite.Empty());
  Enter(QString());
  EXPECT_EQ(FocusName(), S("EstimateForm.eDescription"));
  EXPECT_TRUE(ato.eDescription.Empty());
  EXPECT_TRUE(ato.Units.Empty());
  EXPECT_TRUE(ato.Lengths.Empty());
}

TEST_F(AreasTest, NumberFieldsTakeOnlyDigitsPointAndMinus) {
  StartArea(S("A"));
  Enter(S("Rubber Base"));
  Type(S("-1x2 .,5'"));
  EXPECT_EQ(ato.eLength.Text(), S("-12.5"));
}

TEST_F(AreasTest, AMeasuredLengthOver999IsReadWithItsComma) {
  StartArea(S("A"));
  Enter(S("Wall Paint"));
  ato.Hite.SetText(S("1,000.0"));
  Press(Key::Name::Enter);
  ato.eLength.SetText(S("1,500.0"));
  Press(Key::Name::Enter);
  EXPECT_EQ(Area(S("A")), QStringList{ALine(S("Wall Paint"), S("1500000"), S("SF"))});
}

TEST_F(AreasTest, SystemNamesAreTakenExactly) {
  StartArea(S("A"));
  Enter(S("rubber base"));
  EXPECT_EQ(TakeMessages(), QStringList{S("rubber base Not Found")});
  EXPECT_EQ(pricing.names, QStringList{S("rubber base")});
  EXPECT_EQ(ato.DescriptionsList.Row(0), S("rubber base"));
  EXPECT_TRUE(ato.AreaList.Empty());
  Enter(S("rubber base"));  // the name stays in the list
  EXPECT_TRUE(TakeMessages().isEmpty());
  EXPECT_EQ(ato.AreaList.Count(), 1);
}

TEST_F(AreasTest, APrefixReusesTheLongerNamesLine) {
  MakeSystem(S("Paint"), S("LF"));
  MakeSystem(S("Paint Walls"), S("LF"));
  Write(Data(S("Descriptions.tamo")), {S("Paint"), S("Paint Walls")});
  StartArea(S("A"));
  Line1(S("Paint Walls"), S("10"));
  Enter(QString());
  Line1(S("Paint"), S("5"));
  EXPECT_EQ(Area(S("A")), QStringList{ALine(S("Paint Walls"), S("15"), S("LF"))});
}

TEST_F(AreasTest, AnExistingLineOfASurfaceIsTakenUpAgain) {
  Write(Project(S("ATOs/Areas.tamo")), {S("A"), S("True")});
  Write(Project(S("ATOs/A.ato")),
        {ALine(S("Carpet"), S("20"), S("SY")), ALine(S("Wall Paint"), S("100"), S("SF"))});
  StartArea(S("A"));
  EXPECT_EQ(ato.AreaList.Count(), 2);
  Enter(S("Wall Paint"));
  EXPECT_EQ(FocusName(), S("EstimateForm.Hite"));
  EXPECT_EQ(ato.AreaList.Index(), 1);
  Enter(S("10"));
  Enter(S("1.5"));
  EXPECT_EQ(Area(S("A")).at(1), ALine(S("Wall Paint"), S("115"), S("SF")));
}

TEST_F(AreasTest, ThePlanIsReleasedWhenAHeightIsAsked) {
  StartArea(S("A"));
  plan.calls.clear();
  Enter(S("Wall Paint"));
  EXPECT_TRUE(plan.calls.contains(S("release")));
  EXPECT_TRUE(plan.calls.contains(S("clear")));
  plan.calls.clear();
  Enter(S("8"));
  EXPECT_EQ(plan.calls, (QStringList{S("tool 0"), S("clear")}));
}

TEST_F(AreasTest, ABlankDescriptionLeavesTheArea) {
  StartArea(S("A"));
  Line1(S("Rubber Base"), S("5"));
  Enter(QString());
  Enter(QString());
  EXPECT_EQ(FocusName(), S("EstimateForm.Area"));
  EXPECT_TRUE(ato.Area.Empty());
  EXPECT_TRUE(ato.AreasList.Shown());
}

TEST_F(AreasTest, AutoRoomGoesOnToTheNextArea) {
  EXPECT_EQ(ato.AutoRoom.Caption(), S(" &AutoRoom is Off"));
  EnterItems();
  Choose(ato.AutoRoom);
  EXPECT_EQ(ato.AutoRoom.Caption(), S("AutoRoom is ON"));
  Enter(ato.Area, S("Unit 9"));
  Line1(S("Rubber Base"), S("5"));
  Enter(QString());
  Enter(QString());
  EXPECT_EQ(ato.Area.Text(), S("Unit10"));
  EXPECT_EQ(FocusName(), S("EstimateForm.eDescription"));
  EXPECT_EQ(Areas(), (QStringList{S("Unit 9"), S("True"), S("Unit10"), S("True")}));
}

TEST_F(AreasTest, AnAreaLineWithACommaComesBackAsTwo) {
  Write(Project(S("ATOs/Areas.tamo")), {S("A"), S("True")});
  Write(Project(S("ATOs/A.ato")), {S("Paint, red                       5 SF")});
  StartArea(S("A"));
  EXPECT_EQ(ato.AreaList.Rows(), (QStringList{S("Paint"), S("red                       5 SF")}));
}

TEST_F(AreasTest, AnInsertedSlotIsStoredAndComesBack) {
  StartArea(S("A"));
  Line1(S("Rubber Base"), S("5"));
  desk.RightClickRow(ato.AreaList, 0);
  EXPECT_EQ(ato.openPopup, &ato.EditArea);
  Choose(ato.SystemInsert);
  const QStringList lines = {QString(), ALine(S("Rubber Base"), S("5"), S("LF"))};
  EXPECT_EQ(Area(S("A")), lines);
  Enter(ato.eDescription, QString());
  Enter(ato.Area, S("A"));
  EXPECT_EQ(ato.AreaList.Rows(), lines);
}

TEST_F(AreasTest, AnEmptySlotIsNotSelectedAndTheEntryGoesToTheSelectedLine) {
  StartArea(S("A"));
  Line1(S("Rubber Base"), S("5"));
  Choose(ato.SystemInsert);
  ASSERT_EQ(ato.AreaList.Index(), 1);
  Enter(ato.eDescription, S("HM Door"));
  EXPECT_EQ(ato.AreaList.Index(), 1);
  EXPECT_EQ(FocusName(), S("EstimateForm.eLength"));
  Enter(S("2"));
  EXPECT_EQ(Area(S("A")), (QStringList{QString(), ALine(S("Rubber Base"), S("7"), S("EA"))}));
}

TEST_F(AreasTest, AClickedSlotTakesTheSystemInWork) {
  StartArea(S("A"));
  Line1(S("Rubber Base"), S("5"));
  Choose(ato.SystemInsert);
  desk.ClickRow(ato.AreaList, 0);
  Enter(ato.eDescription, S("HM Door"));
  Enter(S("2"));
  EXPECT_EQ(Area(S("A")), (QStringList{ALine(S("HM Door"), S("2"), S("EA")),
                                       ALine(S("Rubber Base"), S("5"), S("LF"))}));
}

TEST_F(AreasTest, DeleteSystemTakesTheSelectedLine) {
  StartArea(S("A"));
  Line1(S("Rubber Base"), S("5"));
  Enter(QString());
  Line1(S("HM Door"), S("2"));
  desk.RightClickRow(ato.AreaList, 0);
  Choose(ato.SystemDelete);
  EXPECT_EQ(Area(S("A")), QStringList{ALine(S("HM Door"), S("2"), S("EA"))});
  EXPECT_EQ(FocusName(), S("EstimateForm.eDescription"));
  EXPECT_TRUE(ato.eDescription.Empty());
  Choose(ato.SystemDelete);  // none is selected
  EXPECT_EQ(Area(S("A")).size(), 1);
}

}  // namespace
}  // namespace tamo::test
