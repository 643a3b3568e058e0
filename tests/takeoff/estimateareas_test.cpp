// Free areas as a whole: taken off the list, copied, kept apart by project, and files as others
// left them.

#include <QDir>

#include "takeoff/takeoffbench.h"

namespace tamo::test {
namespace {

#define S QStringLiteral

TEST_F(AreasTest, PopupsNeedAName) {
  EnterItems();
  desk.RightClick(ato.Area);
  EXPECT_EQ(ato.openPopup, nullptr);
  Enter(ato.Area, S("A"));
  desk.RightClick(ato.eDescription);
  EXPECT_EQ(ato.openPopup, nullptr);
  desk.RightClick(ato.Area);
  EXPECT_EQ(ato.openPopup, &ato.EditAreas);
}

TEST_F(AreasTest, DeleteAreaTakesTheFollowingAreaToo) {
  EnterItems();
  for (const QString& area : {S("A"), S("B"), S("C"), S("D")}) {
    Enter(ato.Area, area);
    Line1(S("Rubber Base"), S("5"));
    Enter(QString());
    Enter(QString());
  }
  Enter(ato.Area, S("B"));
  Choose(ato.AreasDelete);
  EXPECT_EQ(Areas(), (QStringList{S("A"), S("True"), S("D"), S("True")}));
  EXPECT_TRUE(ato.AreasList.Shown());
  EXPECT_EQ(FocusName(), S("EstimateForm.Area"));
  EXPECT_TRUE(ato.Area.Empty());
  EXPECT_TRUE(ato.AreaList.Empty());
  EXPECT_TRUE(ato.StatusText.Caption().contains(S("\"B\" and \"C\"")));
  EXPECT_EQ(Area(S("C")).size(), 1);
}

TEST_F(AreasTest, DeleteAreaOnTheLastAndOnAnUnknownOne) {
  EnterItems();
  Enter(ato.Area, S("A"));
  Enter(ato.Area, S("B"));
  Choose(ato.AreasDelete);
  EXPECT_EQ(Areas(), (QStringList{S("A"), S("True")}));
  Type(S("Z"));
  Choose(ato.AreasDelete);
  EXPECT_EQ(Areas(), (QStringList{S("A"), S("True")}));
  EXPECT_EQ(ato.Area.Text(), S("Z"));
  EXPECT_TRUE(TakeMessages().isEmpty());
}

TEST_F(AreasTest, DeleteAreaTakesTheLastOfEqualNames) {
  Write(Project(S("ATOs/Areas.tamo")), {S("A"), S("True"), S("B"), S("True"), S("A"), S("True")});
  EnterItems();
  Enter(ato.Area, S("A"));
  Choose(ato.AreasDelete);
  EXPECT_EQ(Areas(), (QStringList{S("A"), S("True"), S("B"), S("True")}));
}

TEST_F(AreasTest, CopyAndPasteReplacesTheLines) {
  StartArea(S("A"));
  Line1(S("Rubber Base"), S("5"));
  Enter(QString());
  Enter(S("Wall Paint"));
  Enter(S("8"));
  Enter(S("10"));
  Choose(ato.CopyArea);
  const QStringList lines = Area(S("A"));
  Enter(ato.eDescription, QString());
  Enter(ato.Area, S("B"));
  Line1(S("HM Door"), S("1"));
  Choose(ato.PasteArea);
  EXPECT_EQ(Area(S("B")), lines);
  EXPECT_EQ(ato.AreaList.Index(), 1);
  EXPECT_EQ(ato.Hite.Text(), S("8"));
  EXPECT_EQ(FocusName(), S("EstimateForm.Hite"));
}

TEST_F(AreasTest, PasteWithNothingCopiedChangesNothing) {
  StartArea(S("A"));
  Line1(S("Rubber Base"), S("5"));
  Choose(ato.PasteArea);
  EXPECT_EQ(ato.AreaList.Count(), 1);
}

TEST_F(AreasTest, TheStale53LeavesTheNextAreaEmptyUntilASystemIsLoaded) {
  Write(Project(S("ATOs/Areas.tamo")), {S("Old"), S("True")});
  Write(Project(S("ATOs/Old.ato")), {ALine(S("Carpet"), S("20"), S("SY"))});
  StartArea(S("New"));  // has no file yet
  Enter(QString());
  Enter(ato.Area, S("Old"));
  EXPECT_TRUE(ato.AreaList.Empty());
  EXPECT_EQ(ato.AreasList.Rows(), (QStringList{S("Old"), S("New")}));  // the list itself is read
  // A system that is loaded sets it back.
  Enter(QString());
  Enter(ato.Area, S("New"));
  Line1(S("Rubber Base"), S("5"));
  Enter(QString());
  Enter(QString());
  Enter(S("Old"));
  EXPECT_EQ(ato.AreaList.Rows(), QStringList{ALine(S("Carpet"), S("20"), S("SY"))});
}

TEST_F(AreasTest, AClickOnAnAreaLoadsIt) {
  Write(Project(S("ATOs/Areas.tamo")), {S("A"), S("True"), S("B"), S("True")});
  Write(Project(S("ATOs/B.ato")), {ALine(S("Carpet"), S("20"), S("SY"))});
  EnterItems();
  desk.ClickRow(ato.AreasList, 1);
  EXPECT_EQ(ato.Area.Text(), S("B"));
  EXPECT_FALSE(ato.AreasList.Shown());
  EXPECT_EQ(FocusName(), S("EstimateForm.eDescription"));
  EXPECT_EQ(ato.AreaList.Count(), 1);
  desk.ClickRow(ato.AreaList, 0);
  EXPECT_EQ(ato.eDescription.Text(), S("Carpet"));
  EXPECT_EQ(ato.Units.Text(), S("SY"));
  EXPECT_EQ(ato.LengthLabel.Caption(), S("Length:"));
  EXPECT_EQ(FocusName(), S("EstimateForm.Hite"));
}

TEST_F(AreasTest, AnEntryStaysInTheAreaThatWasTypedAfterAClickedOne) {
  Write(Project(S("ATOs/Areas.tamo")), {S("A"), S("True"), S("B"), S("True")});
  EnterItems();
  desk.ClickRow(ato.AreasList, 1);
  Line1(S("Rubber Base"), S("5"));
  Enter(QString());
  Enter(QString());
  Enter(ato.Area, S("A"));
  Line1(S("Rubber Base"), S("7"));
  EXPECT_EQ(ato.Area.Text(), S("A"));
  EXPECT_EQ(Area(S("A")), QStringList{ALine(S("Rubber Base"), S("7"), S("LF"))});
  EXPECT_EQ(Area(S("B")), QStringList{ALine(S("Rubber Base"), S("5"), S("LF"))});
}

TEST_F(AreasTest, APickedSystemWaitsForEnter) {
  StartArea(S("A"));
  desk.DoubleClick(ato.eDescription);
  desk.ClickRow(ato.DescriptionsList, 3);
  EXPECT_EQ(ato.eDescription.Text(), S("ACT Ceiling"));
  EXPECT_EQ(FocusName(), S("EstimateForm.eDescription"));
  EXPECT_EQ(Lines(Data(S("Descriptions.tamo"))).first(), S("ACT Ceiling"));
  EXPECT_TRUE(ato.AreaList.Empty());
  Press(Key::Name::Enter);
  EXPECT_FALSE(ato.DescriptionsList.Shown());
  EXPECT_EQ(FocusName(), S("EstimateForm.Hite"));
}

TEST_F(AreasTest, ComingBackFromThePlanGoesToTheFieldThatWaits) {
  StartArea(S("A"));
  Enter(S("Rubber Base"));
  desk.Dispatch([&] { shell.ost.Show(); });
  desk.UserActivate(ato);
  EXPECT_EQ(FocusName(), S("EstimateForm.eLength"));
  EXPECT_EQ(ato.AreaList.Count(), 1);
  Enter(QString());
  Enter(S("Wall Paint"));
  desk.Dispatch([&] { shell.ost.Show(); });
  desk.UserActivate(ato);
  EXPECT_EQ(FocusName(), S("EstimateForm.Hite"));
}

TEST_F(AreasTest, BadAreaNamesAreRefusedAndNothingIsWritten) {
  EnterItems();
  for (const QString& name : {S("a/b"), S(".."), S("NUL"), QString(300, QLatin1Char('y'))}) {
    desk.ClickInto(ato.Area);
    ato.Area.SelectAll();
    desk.Paste(ato.Area, name);
    Press(Key::Name::Enter);
    EXPECT_EQ(TakeMessages().size(), 1) << name.toStdString();
  }
  EXPECT_TRUE(disk.Names(Project(S("ATOs"))).isEmpty());
}

TEST_F(AreasTest, ThrownAwayKeysInAnAreaName) {
  EnterItems();
  Type(S("a\\b,c\"d/e"));
  EXPECT_EQ(ato.Area.Text(), S("abcde"));
}

TEST_F(AreasTest, NoSystemsYetHidesTheFormForGood) {
  Write(Data(S("Descriptions.tamo")), {});
  EnterItems();
  EXPECT_EQ(TakeMessages(), QStringList{S("Enter pricing information first.")});
  EXPECT_FALSE(ato.Visible());
}

TEST_F(AreasTest, AMissingSystemListPassesSilently) {
  disk.RemoveFile(Data(S("Descriptions.tamo")));
  EnterItems();
  EXPECT_TRUE(TakeMessages().isEmpty());
  EXPECT_TRUE(ato.Visible());
}

TEST_F(AreasTest, ALengthWithNoLineSelectedStoresNothing) {
  StartArea(S("A"));
  Enter(ato.eLength, S("5"));
  EXPECT_EQ(TakeMessages().size(), 1);
  EXPECT_FALSE(Exists(Project(S("ATOs/A.ato"))));
}

TEST_F(AreasTest, AnAreaFileThatCanNotBeReadIsNotSavedOver) {
  Write(Project(S("ATOs/Areas.tamo")), {S("A"), S("True")});
  QDir().mkpath(Project(S("ATOs/A.ato")));
  StartArea(S("A"));
  Line1(S("Rubber Base"), S("5"));
  EXPECT_TRUE(files.Notice().contains(S("A.ato")));
  EXPECT_TRUE(files.Notice().contains(S("Your entries wait here")));
  ASSERT_EQ(files.PendingSaves().size(), 1U);
  EXPECT_TRUE(disk.IsFolder(Project(S("ATOs/A.ato"))));
  // What can't be read made way for what others had entered.
  disk.RemoveFolder(Project(S("ATOs/A.ato")));
  const QString theirs = ALine(S("Carpet"), S("7"), S("SF"));
  Write(Project(S("ATOs/A.ato")), {theirs});
  EXPECT_TRUE(files.TryAgain());
  EXPECT_EQ(Area(S("A")), (QStringList{theirs, ALine(S("Rubber Base"), S("5"), S("LF"))}));
}

TEST_F(AreasTest, AFullDiskLosesNothing) {
  StartArea(S("A"));
  disk.SetFull(true);
  Line1(S("Rubber Base"), S("5"));
  EXPECT_TRUE(files.Notice().contains(S("A.ato")));
  EXPECT_EQ(ato.AreaList.Row(0), ALine(S("Rubber Base"), S("5"), S("LF")));
  disk.SetFull(false);
  Enter(S("1"));
  EXPECT_EQ(Area(S("A")), QStringList{ALine(S("Rubber Base"), S("6"), S("LF"))});
  EXPECT_TRUE(files.Notice().isEmpty());
}

TEST_F(AreasTest, AQuantityTooLongIsRefusedByName) {
  StartArea(S("A"));
  Enter(S("Wall Paint"));
  Enter(S("99999999999"));
  Enter(S("99999999999"));
  const QStringList shown = TakeMessages();
  ASSERT_EQ(shown.size(), 1);
  EXPECT_TRUE(shown.first().contains(S("Wall Paint")));
}

TEST_F(AreasTest, ExitClearsTheWork) {
  StartArea(S("A"));
  Line1(S("Rubber Base"), S("5"));
  Choose(ato.Exit);
  EXPECT_FALSE(ato.Visible());
  EXPECT_TRUE(ato.Area.Empty() && ato.Hite.Empty() && ato.eLength.Empty());
  EXPECT_TRUE(ato.AreaList.Empty());
}

TEST_F(AreasTest, NothingOfAnotherProjectStandsInTheForm) {
  StartArea(S("A"));
  Enter(S("Rubber Base"));
  OpenProject(S("00-2112002"));
  desk.Dispatch([&] { shell.ost.Show(); });
  EnterItems();
  EXPECT_TRUE(ato.Area.Empty());
  EXPECT_TRUE(ato.AreaList.Empty());
  EXPECT_EQ(FocusName(), S("EstimateForm.Area"));
}

TEST_F(AreasTest, AUnitWithBlanksBehindItIsTrimmedAtTheEntry) {
  MakeSystem(S("Trim"), S("LF  "));
  Write(Data(S("Descriptions.tamo")), {S("Trim")});
  StartArea(S("A"));
  Line1(S("Trim"), S("5"));
  EXPECT_EQ(Area(S("A")), QStringList{ALine(S("Trim"), S("5"), S("LF"))});
}

}  // namespace
}  // namespace tamo::test
