// Taking off the room finish schedule.

#include "takeoff/takeoffbench.h"

namespace tamo::test {
namespace {

#define S QStringLiteral

class WalkTest : public TakeoffTest {
 protected:
  // A room as an earlier session left it.
  void GiveRoom(const QString& name, const QString& height, const QStringList& lines) {
    names_ << name << S("True");
    Write(Project(S("Rooms/Rooms.tamo")), names_);
    Write(Project(S("Rooms/") + name + S(".rfs")), QStringList(height) + lines);
  }
  QString Quantity(const QString& room, int line) {
    return Room(room).value(line + 1).mid(32, 14).trimmed();
  }

  const QString walls_ = Line(S("Wall Paint"), S("WALLS"), S("0"), S("SF"));
  const QString ceiling_ = Line(S("ACT Ceiling"), S("CLNG"), S("0"), S("sf"));
  const QString base_ = Line(S("Rubber Base"), S("BASE"), S("0"), S("LF"));
  const QString door_ = Line(S("HM Door"), S("DOORS"), S("0"), S("EA"));

 private:
  QStringList names_;
};

TEST_F(WalkTest, TheEntryStartsAtTheFirstLineOfTheFirstRoom) {
  GiveRoom(S("101"), S("8"), {walls_, base_});
  GiveRoom(S("102"), S("9"), {walls_});
  TakeOff();
  EXPECT_EQ(rfs.Flag, S("Estimate"));
  EXPECT_FALSE(rfs.AutoRoom.Shown());
  EXPECT_EQ(rfs.Room.Text(), S("101"));
  EXPECT_EQ(rfs.RoomsList.Index(), 0);
  EXPECT_EQ(rfs.RoomList.Index(), 0);
  EXPECT_EQ(rfs.Description.Text(), S("Wall Paint"));
  EXPECT_EQ(rfs.Area.Text(), S("WALLS"));
  EXPECT_EQ(rfs.Units.Text(), S("SF"));
  EXPECT_EQ(rfs.How.Text(), S("8"));
  EXPECT_EQ(FocusName(), S("RFSForm.Length"));
  EXPECT_EQ(shared.IAmHere, S("RL"));
  EXPECT_EQ(plan.tool, 1);
  EXPECT_EQ(rfs.StatusText.Caption(), S("Room 1 of 2, line 1 of 2"));
}

TEST_F(WalkTest, EntriesOnALinearLineAreAddedUnrounded) {
  GiveRoom(S("101"), S("8"), {base_});
  TakeOff();
  EXPECT_EQ(rfs.LengthLabel.Caption(), S("Length"));
  EXPECT_TRUE(rfs.How.Empty());
  Enter(S("12.5"));
  EXPECT_EQ(rfs.Length.Text(), QString());
  EXPECT_EQ(FocusName(), S("RFSForm.Length"));
  Enter(S("3"));
  EXPECT_EQ(Quantity(S("101"), 0), S("15.5"));
  EXPECT_EQ(rfs.RoomList.Row(0), Line(S("Rubber Base"), S("BASE"), S("15.5"), S("LF")));
  EXPECT_EQ(rfs.Lengths.Rows(), (QStringList{S("      12.5"), S("         3")}));
}

TEST_F(WalkTest, ASurfaceRoundsItsRunningTotal) {
  GiveRoom(S("101"), S("8"), {walls_});
  TakeOff();
  Enter(S("10.3"));
  EXPECT_EQ(Quantity(S("101"), 0), S("82"));
  Enter(S("10.3"));
  EXPECT_EQ(Quantity(S("101"), 0), S("164"));
  EXPECT_EQ(rfs.Lengths.Rows(), (QStringList{S("8 X 10.3"), S("8 X 10.3")}));
  EXPECT_EQ(FocusName(), S("RFSForm.Length"));
}

TEST_F(WalkTest, AYardOfSurfaceIsNotConverted) {
  GiveRoom(S("101"), S("8"), {Line(S("Carpet"), S("ROOM"), S("0"), S("SY"))});
  TakeOff();
  Enter(S("10"));
  EXPECT_EQ(Quantity(S("101"), 0), S("80"));
}

TEST_F(WalkTest, ACountLineSetsThePlanToCounting) {
  GiveRoom(S("101"), S("8"), {door_});
  TakeOff();
  EXPECT_EQ(rfs.LengthLabel.Caption(), S("How many"));
  EXPECT_EQ(plan.tool, 2);
  EXPECT_EQ(plan.calls.mid(plan.calls.size() - 2), (QStringList{S("tool 0"), S("tool 2")}));
  Enter(S("4"));
  EXPECT_EQ(Quantity(S("101"), 0), S("4"));
  EXPECT_EQ(plan.calls.last(), S("save"));
}

TEST_F(WalkTest, NegativeEntriesLowerTheQuantity) {
  GiveRoom(S("101"), S("8"), {walls_, base_});
  TakeOff();
  Enter(S("10"));
  Enter(S("-3"));
  EXPECT_EQ(Quantity(S("101"), 0), S("56"));
  Enter(QString());  // to How
  Enter(S("-2"));    // the minus sign passes the filter
  EXPECT_EQ(FocusName(), S("RFSForm.Length"));
  Enter(S("10"));
  EXPECT_EQ(Quantity(S("101"), 0), S("36"));
}

TEST_F(WalkTest, ASecondWalkAddsToWhatStands) {
  GiveRoom(S("101"), S("8"), {base_});
  for (const QString& quantity : {S("10"), S("20")}) {
    TakeOff();
    Enter(S("10"));
    Enter(QString());
    EXPECT_EQ(Quantity(S("101"), 0), quantity);
    EXPECT_FALSE(rfs.Visible());
  }
}

TEST_F(WalkTest, BlankOnASurfaceAsksForAHeightAndBlankThereEndsTheLine) {
  GiveRoom(S("101"), S("8"), {walls_, base_});
  TakeOff();
  Enter(S("10"));
  Enter(QString());
  EXPECT_EQ(FocusName(), S("RFSForm.How"));
  EXPECT_TRUE(rfs.How.Empty());
  EXPECT_EQ(shared.IAmHere, S("RH"));
  Enter(S("4"));
  EXPECT_EQ(FocusName(), S("RFSForm.Length"));
  Enter(S("5"));
  EXPECT_EQ(Quantity(S("101"), 0), S("100"));
  EXPECT_EQ(Room(S("101")).first(), S("4"));  // the width in use stands in the file meanwhile
  Enter(QString());
  Enter(QString());
  EXPECT_EQ(Room(S("101")).first(), S("8"));  // the height is back
  EXPECT_EQ(rfs.RoomList.Index(), 1);
  EXPECT_EQ(FocusName(), S("RFSForm.Length"));
  EXPECT_EQ(rfs.Description.Text(), S("Rubber Base"));
  EXPECT_TRUE(rfs.Lengths.Empty());
}

TEST_F(WalkTest, BlankOrZeroOnALinearLineGoesToTheNextLine) {
  GiveRoom(S("101"), S("8"), {base_, door_, walls_});
  TakeOff();
  Enter(S("0"));
  EXPECT_EQ(rfs.RoomList.Index(), 1);
  Enter(QString());
  EXPECT_EQ(rfs.RoomList.Index(), 2);
  EXPECT_EQ(FocusName(), S("RFSForm.Length"));
  EXPECT_EQ(rfs.How.Text(), S("8"));
}

TEST_F(WalkTest, ACeilingAsksForItsWidthAndTheNextWallFindsTheHeight) {
  GiveRoom(S("101"), S("8"), {ceiling_, walls_});
  TakeOff();
  EXPECT_EQ(FocusName(), S("RFSForm.How"));
  EXPECT_TRUE(rfs.How.Empty());
  Enter(S("12"));
  Enter(S("10"));
  EXPECT_EQ(Quantity(S("101"), 0), S("120"));
  Enter(QString());
  Enter(QString());
  EXPECT_EQ(rfs.RoomList.Index(), 1);
  EXPECT_EQ(rfs.How.Text(), S("8"));
  EXPECT_EQ(FocusName(), S("RFSForm.Length"));
}

TEST_F(WalkTest, FloorsInAnyCaseAskForTheirWidth) {
  GiveRoom(S("101"), S("8"), {Line(S("Carpet"), S("floor"), S("0"), S("SY"))});
  TakeOff();
  EXPECT_EQ(FocusName(), S("RFSForm.How"));
  EXPECT_TRUE(rfs.How.Empty());
}

TEST_F(WalkTest, ASurfaceInARoomWithNoHeightAsksForIt) {
  GiveRoom(S("101"), S("0"), {walls_});
  TakeOff();
  EXPECT_EQ(FocusName(), S("RFSForm.How"));
  Enter(S("9"));
  Enter(S("10"));
  EXPECT_EQ(Quantity(S("101"), 0), S("90"));
}

TEST_F(WalkTest, RoomsWithoutLinesAreSteppedOver) {
  GiveRoom(S("101"), S("8"), {base_});
  GiveRoom(S("102"), S("8"), {});
  GiveRoom(S("103"), S("8"), {});
  GiveRoom(S("104"), S("9"), {walls_});
  TakeOff();
  Enter(QString());
  EXPECT_EQ(rfs.Room.Text(), S("104"));
  EXPECT_EQ(rfs.How.Text(), S("9"));
  EXPECT_EQ(rfs.StatusText.Caption(), S("Room 4 of 4, line 1 of 1"));
}

TEST_F(WalkTest, AFirstRoomWithoutLinesIsSteppedOver) {
  GiveRoom(S("100"), S("8"), {});
  GiveRoom(S("101"), S("8"), {base_});
  TakeOff();
  EXPECT_EQ(rfs.Room.Text(), S("101"));
  EXPECT_EQ(FocusName(), S("RFSForm.Length"));
}

TEST_F(WalkTest, TheEndInShell1ShowsTheMainForm) {
  GiveRoom(S("101"), S("8"), {base_});
  TakeOff();
  Enter(S("5"));
  Enter(QString());
  EXPECT_FALSE(rfs.Visible());
  EXPECT_EQ(shell.calls, (QStringList{S("main"), S("main")}));
  EXPECT_EQ(desk.Active(), &shell.main);
  EXPECT_EQ(Quantity(S("101"), 0), S("5"));
}

TEST_F(WalkTest, TheEndInShell2ShowsThePlan) {
  shared.GUIText = S("2");
  GiveRoom(S("101"), S("8"), {base_});
  TakeOff();
  Enter(QString());
  EXPECT_FALSE(rfs.Visible());
  EXPECT_EQ(shell.calls, QStringList{S("OST")});
  EXPECT_EQ(desk.Active(), &shell.ost);
}

TEST_F(WalkTest, TheEndNeitherClearsNorSavesFurther) {
  GiveRoom(S("101"), S("8"), {walls_});
  TakeOff();
  Enter(S("10"));
  Enter(QString());
  Enter(QString());
  EXPECT_EQ(rfs.Room.Text(), S("101"));
  EXPECT_EQ(rfs.RoomList.Count(), 1);
  EXPECT_EQ(rfs.How.Text(), S("8"));
}

TEST_F(WalkTest, NoRoomsAtAllEndAtOnce) {
  TakeOff();
  EXPECT_FALSE(rfs.Visible());
  EXPECT_EQ(desk.Active(), &shell.main);
}

TEST_F(WalkTest, NoSystemsAtAllTellOnceAndHide) {
  GiveRoom(S("101"), S("8"), {base_});
  Write(Data(S("Descriptions.tamo")), {});
  TakeOff();
  EXPECT_EQ(TakeMessages(), QStringList{S("Enter pricing information first.")});
  EXPECT_FALSE(rfs.Visible());
}

TEST_F(WalkTest, ATenCharacterFinishAreaIsRewrittenWithNine) {
  GiveRoom(S("101"), S("8"), {Line(S("Rubber Base"), S("NORTH WALL"), S("0"), S("LF"))});
  TakeOff();
  EXPECT_EQ(rfs.Area.Text(), S("NORTH WAL"));
  Enter(S("5"));
  EXPECT_EQ(Room(S("101")).at(1), Line(S("Rubber Base"), S("NORTH WAL"), S("5"), S("LF")));
}

TEST_F(WalkTest, AMeasuredLengthOver999IsReadWithItsComma) {
  GiveRoom(S("101"), S("8"), {base_, walls_});
  TakeOff();
  rfs.Length.SetText(S("1,500.0"));
  Press(Key::Name::Enter);
  EXPECT_EQ(Quantity(S("101"), 0), S("1500"));
  Enter(QString());
  rfs.How.SetText(S("1,000"));
  rfs.Length.SetText(S("2,000.5"));
  Press(Key::Name::Enter);
  EXPECT_EQ(Quantity(S("101"), 1), S("2000500"));
}

TEST_F(WalkTest, EnterInLengthWithNoLineSelectedStoresNothing) {
  GiveRoom(S("101"), S("8"), {door_, base_});
  TakeOff();
  Choose(rfs.RmListDelete);
  disk.ResetSteps();
  Enter(rfs.Length, S("5"));
  EXPECT_EQ(TakeMessages().size(), 1);
  EXPECT_EQ(disk.StepsTaken(), 0);
  EXPECT_EQ(rfs.Length.Text(), S("5"));
  EXPECT_EQ(Quantity(S("101"), 0), S("0"));
}

TEST_F(WalkTest, AQuantityTooLongForItsColumnIsRefusedByName) {
  GiveRoom(S("101"), S("99999999999"), {walls_});
  TakeOff();
  Enter(S("99999999999"));
  const QStringList shown = TakeMessages();
  ASSERT_EQ(shown.size(), 1);
  EXPECT_TRUE(shown.first().contains(S("Wall Paint")));
  EXPECT_EQ(Quantity(S("101"), 0), S("0"));
  EXPECT_EQ(rfs.Length.Text(), S("99999999999"));
}

TEST_F(WalkTest, ARoomPickedInTheTakeoffKeepsTheHeightInUse) {
  GiveRoom(S("101"), S("8"), {walls_});
  GiveRoom(S("102"), S("9"), {walls_});
  TakeOff();
  desk.DoubleClick(rfs.Room);
  desk.ClickRow(rfs.RoomsList, 1);
  EXPECT_EQ(rfs.Room.Text(), S("102"));
  EXPECT_EQ(rfs.How.Text(), S("8"));
  EXPECT_EQ(rfs.CopyHeight, S("9"));
}

TEST_F(WalkTest, EnterInRoomSelectsItsFirstLine) {
  GiveRoom(S("101"), S("8"), {walls_, base_});
  GiveRoom(S("102"), S("9"), {base_, walls_});
  TakeOff();
  Enter(rfs.Room, S("102"));
  EXPECT_EQ(rfs.RoomList.Index(), 0);
  EXPECT_EQ(FocusName(), S("RFSForm.Length"));
  EXPECT_EQ(rfs.Description.Text(), S("Rubber Base"));
}

TEST_F(WalkTest, AnEmptyDescriptionGoesBackToRoom) {
  GiveRoom(S("101"), S("8"), {base_});
  TakeOff();
  Enter(rfs.Description, QString());
  EXPECT_EQ(FocusName(), S("RFSForm.Room"));
}

TEST_F(WalkTest, ADoubleClickOnLengthShowsTheTally) {
  GiveRoom(S("101"), S("8"), {walls_});
  TakeOff();
  desk.DoubleClick(rfs.Length);
  EXPECT_TRUE(rfs.Lengths.Shown());
  Enter(S("10"));
  EXPECT_TRUE(rfs.Lengths.Shown());
  Enter(QString());
  EXPECT_FALSE(rfs.Lengths.Shown());
}

TEST_F(WalkTest, EachEntryRefreshesTheReportAndSavesThePlan) {
  GiveRoom(S("101"), S("8"), {walls_});
  TakeOff();
  reports.count = 0;
  plan.calls.clear();
  Enter(S("10"));
  EXPECT_EQ(reports.count, 1);
  EXPECT_EQ(plan.calls, (QStringList{S("tool 0"), S("save"), S("tool 0")}));
}

TEST_F(WalkTest, AFolderThatCanNotBeWrittenLosesNothing) {
  GiveRoom(S("101"), S("8"), {walls_, base_});
  TakeOff();
  disk.Deny(Project(S("Rooms")));
  Enter(S("10"));
  EXPECT_EQ(rfs.RoomList.Row(0), Line(S("Wall Paint"), S("WALLS"), S("80"), S("SF")));
  EXPECT_EQ(Quantity(S("101"), 0), S("0"));
  EXPECT_TRUE(files.Notice().contains(S("101.rfs")));
  EXPECT_EQ(FocusName(), S("RFSForm.Length"));
  disk.Allow(Project(S("Rooms")));
  Enter(S("1"));
  EXPECT_EQ(Quantity(S("101"), 0), S("88"));
  EXPECT_TRUE(files.Notice().isEmpty());
}

TEST_F(WalkTest, AFullDiskInTheMiddleOfAWalkIsWalkedThrough) {
  GiveRoom(S("101"), S("8"), {base_});
  GiveRoom(S("102"), S("8"), {base_});
  TakeOff();
  disk.SetFull(true);
  Enter(S("7"));
  Enter(QString());
  EXPECT_EQ(rfs.Room.Text(), S("102"));
  Enter(S("9"));
  disk.SetFull(false);
  Enter(S("1"));
  EXPECT_EQ(Quantity(S("101"), 0), S("7"));
  EXPECT_EQ(Quantity(S("102"), 0), S("10"));
}

TEST_F(WalkTest, AnInterruptedSaveAtAnyStepLeavesAWholeFile) {
  disk.quick = false;
  GiveRoom(S("101"), S("8"), {walls_});
  TakeOff();
  for (int step = 1; step <= 8; ++step) {
    const QStringList before = Room(S("101"));
    disk.FailStep(step, kFileOther);
    Enter(S("1"));
    disk.FailStep(0, 0);
    EXPECT_TRUE(Room(S("101")) == before || Room(S("101")).at(1) == rfs.RoomList.Row(0)) << step;
  }
  Enter(S("1"));
  EXPECT_EQ(Quantity(S("101"), 0), S("72"));
}

TEST_F(WalkTest, HandEditedLinesAreWalkedThrough) {
  GiveRoom(S("101"), S("8"),
           {S("short"), S("a\tb,c"), QString(60, QLatin1Char('x')),
            Line(S("../../evil"), S("WALLS"), S("1"), S("SF"))});
  TakeOff();
  for (int i = 0; i < 12 && rfs.Visible(); ++i) Press(Key::Name::Enter);
  EXPECT_FALSE(rfs.Visible());
  EXPECT_FALSE(Exists(data + S("evil.sys")));
}

TEST_F(WalkTest, ComingBackFromThePlanByAMeasureDoesNotRestart) {
  GiveRoom(S("101"), S("8"), {walls_, base_});
  TakeOff();
  desk.Dispatch([&] { shell.ost.Show(); });
  desk.Dispatch([&] {
    rfs.Length.SetText(S("12.0"));
    desk.FocusWithoutActivation(rfs.Length);
  });
  EXPECT_EQ(rfs.RoomList.Index(), 0);
  Press(Key::Name::Enter);
  EXPECT_EQ(Quantity(S("101"), 0), S("96"));
}

TEST_F(WalkTest, PromptsSayWhatABlankEnterDoes) {
  GiveRoom(S("101"), S("8"), {base_, walls_});
  EnterSchedule();
  EXPECT_EQ(rfs.RoomPrompt.Caption(), S("Leave blank and press Enter to finish"));
  EXPECT_EQ(rfs.DescriptionPrompt.Caption(), S("Leave blank and press Enter for new Height"));
  EXPECT_EQ(rfs.HowPrompt.Caption(), S("Leave blank and press Enter for new Room"));
  TakeOff();
  EXPECT_EQ(rfs.DescriptionPrompt.Caption(), S("Leave blank and press Enter for new Room"));
  EXPECT_EQ(rfs.HowPrompt.Caption(), S("Leave blank and press Enter for new Description"));
  EXPECT_EQ(rfs.LengthPrompt.Caption(), S("Leave blank and press Enter for new Description"));
  Enter(QString());
  EXPECT_EQ(rfs.LengthPrompt.Caption(), S("Leave blank and press Enter for new Height"));
}

}  // namespace
}  // namespace tamo::test
