// Rooms as a whole: taken off the list, copied, kept apart by project, and files as others left
// them.

#include <QDir>

#include "takeoff/takeoffbench.h"

namespace tamo::test {
namespace {

#define S QStringLiteral

TEST_F(TakeoffTest, DeleteRoomTakesTheFollowingRoomToo) {
  EnterSchedule();
  for (const QString& room : {S("101"), S("102"), S("103"), S("104")})
    EnterRoom(room, {S("Wall Paint"), S("WALLS")}, S("8"));
  Enter(rfs.Room, S("102"));
  desk.RightClick(rfs.Room);
  EXPECT_EQ(rfs.openPopup, &rfs.RmsPopup);
  Choose(rfs.RmsDelete);
  EXPECT_EQ(rfs.RoomsList.Rows(), (QStringList{S("101"), S("104")}));
  EXPECT_EQ(Rooms(), (QStringList{S("101"), S("True"), S("104"), S("True")}));
  EXPECT_TRUE(rfs.RoomsList.Shown());
  EXPECT_TRUE(rfs.Room.Empty());
  EXPECT_TRUE(rfs.RoomList.Empty());
  for (const QString& room : {S("102"), S("103")}) {
    EXPECT_TRUE(rfs.StatusText.Caption().contains(room));
    EXPECT_EQ(Room(room).size(), 2);
  }
  Enter(rfs.Room, S("102"));
  EXPECT_EQ(rfs.RoomList.Count(), 1);
}

TEST_F(TakeoffTest, DeleteRoomOnTheLastRoomHasNothingMoreToRemove) {
  EnterSchedule();
  EnterRoom(S("101"), {}, S("8"));
  EnterRoom(S("102"), {}, S("8"));
  Enter(rfs.Room, S("102"));
  Choose(rfs.RmsDelete);
  EXPECT_EQ(Rooms(), (QStringList{S("101"), S("True")}));
  EXPECT_TRUE(TakeMessages().isEmpty());
  EXPECT_TRUE(rfs.RoomsList.Shown());
}

TEST_F(TakeoffTest, DeleteRoomWithAnUnknownNameSaysSoAndKeepsAll) {
  EnterSchedule();
  EnterRoom(S("101"), {}, S("8"));
  desk.ClickInto(rfs.Room);
  Type(S("999"));
  disk.ResetSteps();
  Choose(rfs.RmsDelete);
  EXPECT_EQ(TakeMessages().size(), 1);
  EXPECT_EQ(disk.StepsTaken(), 0);
  EXPECT_EQ(rfs.Room.Text(), S("999"));
  rfs.Room.Clear();
  Choose(rfs.RmsDelete);
  EXPECT_TRUE(TakeMessages().isEmpty());
}

TEST_F(TakeoffTest, DeleteDescriptionTakesTheSelectedLine) {
  EnterSchedule();
  EnterRoom(S("101"), {S("Wall Paint"), S("WALLS"), S("Carpet"), S("FLR")}, S("8"));
  Enter(rfs.Room, S("101"));
  desk.RightClickRow(rfs.RoomList, 0);
  EXPECT_EQ(rfs.openPopup, &rfs.RmList);
  Choose(rfs.RmListDelete);
  EXPECT_EQ(Room(S("101")), (QStringList{S("8"), Line(S("Carpet"), S("FLR"), S("0"), S("SY"))}));
  EXPECT_EQ(FocusName(), S("RFSForm.Description"));
  EXPECT_EQ(rfs.Description.Text(), QString());
  Choose(rfs.RmListDelete);  // none is selected
  EXPECT_EQ(Room(S("101")).size(), 2);
}

TEST_F(TakeoffTest, InsertDescriptionIsFilledByTheNextNewSystem) {
  EnterSchedule();
  EnterRoom(S("101"), {S("Wall Paint"), S("WALLS"), S("Carpet"), S("FLR")}, S("8"));
  Enter(rfs.Room, S("101"));
  desk.RightClickRow(rfs.RoomList, 1);
  Choose(rfs.RmListInsert);
  EXPECT_EQ(rfs.RoomList.Row(1), QString());
  EXPECT_EQ(rfs.RoomList.Index(), 2);
  EXPECT_EQ(Room(S("101")).size(), 3);  // the slot is not stored
  Enter(rfs.Description, S("HM Door"));
  Enter(S("DOORS"));
  EXPECT_EQ(Room(S("101")), (QStringList{S("8"), Line(S("Wall Paint"), S("WALLS"), S("0"), S("SF")),
                                         Line(S("HM Door"), S("DOORS"), S("0"), S("EA")),
                                         Line(S("Carpet"), S("FLR"), S("0"), S("SY"))}));
}

TEST_F(TakeoffTest, AnInsertedSlotIsLostWhenTheRoomIsLeft) {
  EnterSchedule();
  EnterRoom(S("101"), {S("Wall Paint"), S("WALLS")}, S("8"));
  Enter(rfs.Room, S("101"));
  desk.RightClickRow(rfs.RoomList, 0);
  Choose(rfs.RmListInsert);
  EXPECT_EQ(rfs.RoomList.Count(), 2);
  Enter(rfs.Room, S("101"));
  EXPECT_EQ(rfs.RoomList.Count(), 1);
  EXPECT_EQ(Room(S("101")).size(), 2);
}

TEST_F(TakeoffTest, CopyAndPasteOfARoomAcrossProjects) {
  EnterSchedule();
  EnterRoom(S("101"), {S("Wall Paint"), S("WALLS"), S("Carpet"), S("FLR")}, S("8"));
  const QStringList lines = Room(S("101"));
  Enter(rfs.Room, S("101"));
  Choose(rfs.CopyRoom);
  EXPECT_EQ(rfs.CopyHeight1, S("8"));
  OpenProject(S("00-2112002"));
  EnterSchedule();
  EXPECT_TRUE(rfs.RoomList.Empty());  // nothing of the other project stands here
  Enter(rfs.Room, S("201"));
  Choose(rfs.PasteRoom);
  EXPECT_EQ(Room(S("201")), lines);
  EXPECT_EQ(rfs.RoomList.Index(), 1);
  EXPECT_EQ(rfs.CopyHeight, S("8"));
}

TEST_F(TakeoffTest, PasteRoomWithNothingCopiedChangesNothing) {
  EnterSchedule();
  EnterRoom(S("101"), {S("Wall Paint"), S("WALLS")}, S("8"));
  Enter(rfs.Room, S("101"));
  disk.ResetSteps();
  Choose(rfs.PasteRoom);
  EXPECT_EQ(rfs.RoomList.Count(), 1);
  EXPECT_EQ(disk.StepsTaken(), 0);
}

TEST_F(TakeoffTest, ARoomOfAnotherProjectIsNeverStoredInTheOpenOne) {
  EnterSchedule();
  Enter(rfs.Room, S("101"));
  Enter(S("Wall Paint"));
  shared.JobID = S("00-2112009");
  Enter(rfs.Area, S("WALLS"));
  EXPECT_EQ(TakeMessages().size(), 1);
  EXPECT_FALSE(Exists(Project(S("Rooms/101.rfs"))));
}

TEST_F(TakeoffTest, ASaveWithNoRoomNamedIsRefused) {
  EnterSchedule();
  Enter(rfs.Description, S("Wall Paint"));
  Enter(S("WALLS"));
  EXPECT_EQ(TakeMessages().size(), 1);
  EXPECT_TRUE(rfs.RoomList.Empty());
  EXPECT_TRUE(disk.Names(Project(S("Rooms"))).isEmpty());
}

TEST_F(TakeoffTest, NoSystemsYet) {
  Write(Data(S("Descriptions.tamo")), {});
  EnterSchedule();
  EXPECT_EQ(TakeMessages(), QStringList{S("Enter pricing information first.")});
  EXPECT_FALSE(rfs.Visible());
  EXPECT_TRUE(shell.calls.contains(S("main")));
}

TEST_F(TakeoffTest, AMissingSystemListIsToldOnlyWhileDriveByIsFalse) {
  disk.RemoveFile(Data(S("Descriptions.tamo")));
  EnterSchedule();
  EXPECT_EQ(TakeMessages(), QStringList{S("Enter pricing information first.")});
  EXPECT_FALSE(rfs.Visible());
  shared.DriveBy = S("True");
  EnterSchedule();
  EXPECT_TRUE(TakeMessages().isEmpty());
  EXPECT_FALSE(rfs.Visible());
}

TEST_F(TakeoffTest, RoomsTamoWithAnOddCountLoadsTheLastName) {
  Write(Project(S("Rooms/Rooms.tamo")), {S("101"), S("True"), S("102")});
  EnterSchedule();
  EXPECT_EQ(rfs.RoomsList.Rows(), (QStringList{S("101"), S("102")}));
}

TEST_F(TakeoffTest, AnEmptyOrMissingRoomsTamoGivesNoRooms) {
  EnterSchedule();
  EXPECT_TRUE(rfs.RoomsList.Empty());
  Choose(rfs.Exit);
  WriteRaw(Project(S("Rooms/Rooms.tamo")), QByteArray());
  EnterSchedule();
  EXPECT_TRUE(rfs.RoomsList.Empty());
}

TEST_F(TakeoffTest, AHeightBeyondAllNumbersIsToldAndLosesNoLine) {
  Write(Project(S("Rooms/Rooms.tamo")), {S("101"), S("True")});
  Write(Project(S("Rooms/101.rfs")),
        {QString(400, QLatin1Char('9')), Line(S("Wall Paint"), S("WALLS"), S("5"), S("SF"))});
  EnterSchedule();
  Enter(rfs.Room, S("101"));
  EXPECT_EQ(TakeMessages().size(), 1);
  EXPECT_EQ(rfs.RoomList.Count(), 1);
  Enter(rfs.Description, S("Rubber Base"));
  Enter(S("BASE"));
  EXPECT_EQ(Room(S("101")).size(), 3);
}

TEST_F(TakeoffTest, ARoomLineWithACommaLoadsAsOneLine) {
  Write(Project(S("Rooms/Rooms.tamo")), {S("101"), S("True")});
  Write(Project(S("Rooms/101.rfs")),
        {S("8"), QString(), Line(S("Paint, red"), S("WALLS"), S("5"), S("SF"))});
  EnterSchedule();
  Enter(rfs.Room, S("101"));
  EXPECT_EQ(rfs.RoomList.Rows(), QStringList{Line(S("Paint, red"), S("WALLS"), S("5"), S("SF"))});
}

TEST_F(TakeoffTest, APickedRoomInEntryShowsItsHeightOrZero) {
  EnterSchedule();
  EnterRoom(S("101"), {S("Wall Paint"), S("WALLS")}, S("8.50"));
  Enter(rfs.Room, S("102"));
  desk.DoubleClick(rfs.Room);
  EXPECT_TRUE(rfs.RoomsList.Shown());
  desk.ClickRow(rfs.RoomsList, 0);
  EXPECT_FALSE(rfs.RoomsList.Shown());
  EXPECT_EQ(rfs.Room.Text(), S("101"));
  EXPECT_EQ(rfs.How.Text(), S("8.5"));
  EXPECT_EQ(FocusName(), S("RFSForm.Description"));
  desk.DoubleClick(rfs.Room);
  desk.ClickRow(rfs.RoomsList, 1);
  EXPECT_EQ(rfs.How.Text(), S("0"));
}

TEST_F(TakeoffTest, ASystemWithoutAProperColourGetsTheSettingsColour) {
  shared.SettingsLineColor = S("001002003");
  EnterSchedule();
  Enter(rfs.Room, S("101"));
  Enter(S("ACT Ceiling"));
  EXPECT_EQ(shared.LineColor, S("001002003"));
  EXPECT_EQ(plan.pen, S("001002003"));
}

TEST_F(TakeoffTest, ASystemWithNoFileAnywhereHasNoUnitAndTheDefaultColour) {
  Write(Data(S("Descriptions.tamo")), {S("Ghost")});
  EnterSchedule();
  Enter(rfs.Room, S("101"));
  Enter(S("Ghost"));
  EXPECT_EQ(rfs.Units.Text(), QString());
  EXPECT_EQ(shared.LineColor, shared.SettingsLineColor);
  EXPECT_EQ(FocusName(), S("RFSForm.Area"));
}

TEST_F(TakeoffTest, TheProjectsOwnCopyOfASystemComesFirst) {
  Write(Project(S("Systems/Carpet.sys")), {S("Carpet"), S("SF"), S("1"), S("009009009")});
  EnterSchedule();
  Enter(rfs.Room, S("101"));
  Enter(S("Carpet"));
  EXPECT_EQ(rfs.Units.Text(), S("SF"));
}

TEST_F(TakeoffTest, AListThatCouldNotBeReadIsNotSavedOver) {
  QDir().mkpath(Project(S("Rooms/Rooms.tamo")));  // a folder in the file's place can't be read
  EnterSchedule();
  Enter(rfs.Room, S("101"));
  EXPECT_TRUE(TakeMessages().isEmpty());
  EXPECT_TRUE(files.Notice().contains(S("Rooms.tamo")));
  ASSERT_EQ(files.PendingSaves().size(), 1U);
  disk.RemoveFolder(Project(S("Rooms/Rooms.tamo")));
  Write(Project(S("Rooms/Rooms.tamo")), {S("Lobby"), S("True")});
  EXPECT_TRUE(files.TryAgain());
  EXPECT_EQ(Lines(Project(S("Rooms/Rooms.tamo"))),
            (QStringList{S("Lobby"), S("True"), S("101"), S("True")}));
}

TEST_F(TakeoffTest, ExitClearsTheWork) {
  EnterSchedule();
  Enter(rfs.Room, S("101"));
  Enter(S("Wall Paint"));
  Enter(S("WALLS"));
  Choose(rfs.Exit);
  EXPECT_FALSE(rfs.Visible());
  EXPECT_TRUE(rfs.Room.Empty() && rfs.Area.Empty() && rfs.How.Empty() && rfs.Length.Empty());
  EXPECT_TRUE(rfs.RoomList.Empty());
}

TEST_F(TakeoffTest, DswShowsThePlanAndComesBackInFront) {
  EnterSchedule();
  Choose(rfs.OST1);
  EXPECT_EQ(shell.calls.last(), S("OST"));
  EXPECT_TRUE(shell.ost.Visible());
  EXPECT_EQ(desk.Active(), &rfs);
  EXPECT_EQ(FocusName(), S("RFSForm.Room"));
}

TEST_F(TakeoffTest, TheDeleteKeyGoesToThePlan) {
  EnterSchedule();
  Press(Key::Name::Delete);
  EXPECT_TRUE(plan.calls.contains(S("delete")));
}

}  // namespace
}  // namespace tamo::test
