// Entering the room finish schedule.

#include "takeoff/takeoffbench.h"

namespace tamo::test {
namespace {

#define S QStringLiteral

TEST_F(TakeoffTest, EnterShowsTheFormAtRoom) {
  EnterSchedule();
  EXPECT_TRUE(rfs.Visible());
  EXPECT_EQ(rfs.OwnerForm(), &shell.ost);
  EXPECT_EQ(FocusName(), S("RFSForm.Room"));
  EXPECT_EQ(shared.IAmHere, S("RR"));
  EXPECT_EQ(rfs.Flag, S("Enter"));
  EXPECT_EQ(rfs.AutoRoom.Caption(), S("AutoRoom is OFF"));
  EXPECT_TRUE(rfs.AutoRoom.Shown());
  EXPECT_FALSE(rfs.RoomsList.Shown());
  EXPECT_FALSE(rfs.AreaList.Shown());
  EXPECT_FALSE(rfs.DescriptionsList.Shown());
}

TEST_F(TakeoffTest, ActivationWithNoProjectGoesToThePanel) {
  shared.JobID.clear();
  EnterSchedule();
  EXPECT_FALSE(rfs.Visible());
  EXPECT_EQ(shell.calls, (QStringList{S("main"), S("panel")}));
}

TEST_F(TakeoffTest, ARoomIsEnteredFromNothing) {
  EnterSchedule();
  Enter(rfs.Room, S("101"));
  EXPECT_EQ(Rooms(), (QStringList{S("101"), S("True")}));
  EXPECT_EQ(FocusName(), S("RFSForm.Description"));
  EXPECT_EQ(shared.IAmHere, S("RD"));
  Enter(S("wall paint"));  // any case; the list's spelling comes back
  EXPECT_EQ(rfs.Description.Text(), S("Wall Paint"));
  EXPECT_EQ(rfs.Units.Text(), S("SF"));
  EXPECT_EQ(shared.LineColor, S("000128255"));
  EXPECT_EQ(plan.pen, S("000128255"));
  EXPECT_EQ(FocusName(), S("RFSForm.Area"));
  EXPECT_TRUE(rfs.AreaList.Shown());
  EXPECT_TRUE(Exists(Project(S("Systems/Wall Paint.sys"))));
  Enter(S("WALLS"));
  EXPECT_FALSE(rfs.AreaList.Shown());
  EXPECT_EQ(FocusName(), S("RFSForm.Description"));
  EXPECT_EQ(rfs.Description.Text(), QString());
  EXPECT_EQ(rfs.Area.Text(), QString());
  EXPECT_EQ(Room(S("101")),
            (QStringList{QString(), Line(S("Wall Paint"), S("WALLS"), S("0"), S("SF"))}));
  Enter(S("Rubber Base"));
  Enter(S("BASE"));
  Enter(QString());
  EXPECT_EQ(FocusName(), S("RFSForm.How"));
  EXPECT_EQ(shared.IAmHere, S("RH"));
  Enter(S("8.5"));
  EXPECT_EQ(Room(S("101")),
            (QStringList{S("8.5"), Line(S("Wall Paint"), S("WALLS"), S("0"), S("SF")),
                         Line(S("Rubber Base"), S("BASE"), S("0"), S("LF"))}));
  EXPECT_EQ(FocusName(), S("RFSForm.Room"));
  EXPECT_EQ(rfs.Room.Text(), QString());
  EXPECT_TRUE(rfs.RoomList.Empty());
  EXPECT_TRUE(plan.calls.contains(S("save")));
  EXPECT_EQ(Lines(Data(S("Areas.tamo"))), (QStringList{S("BASE"), S("WALLS")}));
}

TEST_F(TakeoffTest, EnterOnAnEmptyRoomHidesTheFormWithoutASave) {
  EnterSchedule();
  disk.ResetSteps();
  Press(Key::Name::Enter);
  EXPECT_FALSE(rfs.Visible());
  EXPECT_EQ(disk.StepsTaken(), 0);
}

TEST_F(TakeoffTest, ThrownAwayKeysInARoomName) {
  EnterSchedule();
  Type(S("a\\b,c\"d/e'f"));
  EXPECT_EQ(rfs.Room.Text(), S("abcde'f"));
}

TEST_F(TakeoffTest, ARoomTypedInAnotherCaseIsFoundAndOpensTheSameFile) {
  EnterSchedule();
  EnterRoom(S("Lobby"), {S("Wall Paint"), S("WALLS")}, S("9"));
  Enter(rfs.Room, S("LOBBY"));
  EXPECT_EQ(Rooms(), (QStringList{S("Lobby"), S("True")}));
  EXPECT_EQ(rfs.Room.Text(), S("LOBBY"));
  EXPECT_EQ(rfs.RoomList.Count(), 1);
  Enter(S("Rubber Base"));
  Enter(S("BASE"));
  EXPECT_EQ(Room(S("Lobby")).size(), 3);
  EXPECT_FALSE(Exists(Project(S("Rooms/LOBBY.rfs"))));
}

TEST_F(TakeoffTest, BadRoomNamesAreRefusedByNameAndNothingIsWritten) {
  EnterSchedule();
  for (const QString& name :
       {S("a/b"), S("..\\..\\x"), S(".."), S("CON"), QString(300, QLatin1Char('x'))}) {
    desk.ClickInto(rfs.Room);
    rfs.Room.SelectAll();
    desk.Paste(rfs.Room, name);
    Press(Key::Name::Enter);
    const QStringList shown = TakeMessages();
    ASSERT_EQ(shown.size(), 1) << name.toStdString();
    EXPECT_TRUE(shown.first().contains(name.left(30))) << shown.first().toStdString();
    EXPECT_EQ(FocusName(), S("RFSForm.Room"));
  }
  EXPECT_FALSE(Exists(Project(S("Rooms/Rooms.tamo"))));
  EXPECT_TRUE(disk.Names(Project(S("Rooms"))).isEmpty());
}

TEST_F(TakeoffTest, AHandEditedRoomsFileWithABadNameReadsNothingOutside) {
  Write(data + S("Projects/secret.rfs"),
        {S("8"), Line(S("Wall Paint"), S("WALLS"), S("5"), S("SF"))});
  Write(Project(S("Rooms/Rooms.tamo")), {S("../../secret"), S("True")});
  EnterSchedule();
  desk.DoubleClick(rfs.Room);
  desk.ClickRow(rfs.RoomsList, 0);
  EXPECT_TRUE(rfs.RoomList.Empty());
  Enter(rfs.Description, S("Wall Paint"));
  Enter(S("WALLS"));
  EXPECT_EQ(TakeMessages().size(), 1);
  EXPECT_EQ(Lines(data + S("Projects/secret.rfs")).size(), 2);
}

TEST_F(TakeoffTest, TrailingDotsAndUmlautsAreRoomNames) {
  EnterSchedule();
  EnterRoom(S("Süd..."), {S("Wall Paint"), S("WALLS")}, S("8"));
  EXPECT_EQ(Room(S("Süd...")).size(), 2);
}

TEST_F(TakeoffTest, AnUnknownSystemGoesToPricingAndStoresNothing) {
  EnterSchedule();
  Enter(rfs.Room, S("101"));
  Enter(S("Fire Caulk"));
  EXPECT_EQ(TakeMessages(), QStringList{S("Fire Caulk System Name Not Found")});
  EXPECT_EQ(pricing.names, QStringList{S("Fire Caulk")});
  EXPECT_TRUE(rfs.RoomList.Empty());
  EXPECT_FALSE(Exists(Project(S("Rooms/101.rfs"))));
}

TEST_F(TakeoffTest, PickedSystemsAndFinishAreasComeToTheTop) {
  Write(Data(S("Areas.tamo")), {S("WALLS"), S("BASE"), S("FLR")});
  EnterSchedule();
  Enter(rfs.Room, S("101"));
  desk.DoubleClick(rfs.Description);
  EXPECT_TRUE(rfs.DescriptionsList.Shown());
  desk.ClickRow(rfs.DescriptionsList, 2);
  EXPECT_FALSE(rfs.DescriptionsList.Shown());
  EXPECT_EQ(rfs.Description.Text(), S("HM Door"));
  EXPECT_EQ(Lines(Data(S("Descriptions.tamo"))),
            (QStringList{S("HM Door"), S("Wall Paint"), S("Rubber Base"), S("ACT Ceiling"),
                         S("Carpet")}));
  EXPECT_EQ(FocusName(), S("RFSForm.Area"));
  desk.ClickRow(rfs.AreaList, 1);
  EXPECT_EQ(Lines(Data(S("Areas.tamo"))), (QStringList{S("BASE"), S("WALLS"), S("FLR")}));
  EXPECT_EQ(rfs.RoomList.Rows(), QStringList{Line(S("HM Door"), S("BASE"), S("0"), S("EA"))});
}

TEST_F(TakeoffTest, AnEmptyFinishAreaTakesPartLikeAnyOther) {
  EnterSchedule();
  EnterRoom(S("101"), {S("HM Door"), QString()}, S("8"));
  EXPECT_EQ(Lines(Data(S("Areas.tamo"))), QStringList{QString()});
  EXPECT_EQ(Room(S("101")), (QStringList{S("8"), Line(S("HM Door"), QString(), S("0"), S("EA"))}));
}

TEST_F(TakeoffTest, FinishAreasAreToldApartByCase) {
  EnterSchedule();
  EnterRoom(S("101"), {S("HM Door"), S("Walls"), S("Carpet"), S("WALLS")}, S("8"));
  EXPECT_EQ(Lines(Data(S("Areas.tamo"))), (QStringList{S("WALLS"), S("Walls")}));
}

TEST_F(TakeoffTest, AFinishAreaForASystemAlreadyThereLeavesItsQuantity) {
  Write(Project(S("Rooms/Rooms.tamo")), {S("101"), S("True")});
  Write(Project(S("Rooms/101.rfs")),
        {S("8"), Line(S("Wall Paint"), S("WALLS"), S("612"), S("SF"))});
  EnterSchedule();
  Enter(rfs.Room, S("101"));
  // The line is selected already, so the typed finish area is taken.
  desk.ClickRow(rfs.RoomList, 0);
  Enter(rfs.Description, S("Wall Paint"));
  Enter(S("NORTH"));
  EXPECT_EQ(Room(S("101")),
            (QStringList{S("8"), Line(S("Wall Paint"), S("NORTH"), S("612"), S("SF"))}));
  EXPECT_EQ(FocusName(), S("RFSForm.Description"));
}

TEST_F(TakeoffTest, ALineThatWasNotSelectedKeepsItsFinishArea) {
  Write(Project(S("Rooms/Rooms.tamo")), {S("101"), S("True")});
  Write(Project(S("Rooms/101.rfs")),
        {S("8"), Line(S("Wall Paint"), S("WALLS"), S("612"), S("SF"))});
  EnterSchedule();
  Enter(rfs.Room, S("101"));
  Enter(S("Wall Paint"));
  Enter(S("NORTH"));
  EXPECT_EQ(Room(S("101")),
            (QStringList{S("8"), Line(S("Wall Paint"), S("WALLS"), S("612"), S("SF"))}));
}

TEST_F(TakeoffTest, AShortNameFindsTheLongerOnesLine) {
  MakeSystem(S("Paint"), S("SF"));
  MakeSystem(S("Paint Walls"), S("SF"));
  Write(Data(S("Descriptions.tamo")), {S("Paint"), S("Paint Walls")});
  EnterSchedule();
  EnterRoom(S("101"), {S("Paint Walls"), S("WALLS"), S("Paint"), S("CLNG")}, S("8"));
  EXPECT_EQ(Room(S("101")).size(), 2);
}

TEST_F(TakeoffTest, ATenCharacterFinishAreaStandsWholeInTheFileAndShowsNineOnAClick) {
  EnterSchedule();
  EnterRoom(S("101"), {S("Wall Paint"), S("NORTH WALL")}, S("8"));
  EXPECT_EQ(Room(S("101")).at(1).mid(21, 11), S("NORTH WALL "));
  Enter(rfs.Room, S("101"));
  desk.ClickRow(rfs.RoomList, 0);
  EXPECT_EQ(rfs.Area.Text(), S("NORTH WAL"));
}

TEST_F(TakeoffTest, HowTakesOnlyDigitsPointAndMinus) {
  EnterSchedule();
  Enter(rfs.Room, S("101"));
  desk.ClickInto(rfs.How);
  rfs.How.SelectAll();
  Type(S("-1a2 .,5'x"));
  EXPECT_EQ(rfs.How.Text(), S("-12.5"));
}

TEST_F(TakeoffTest, ABlankHeightIsTakenFromTheRoomBefore) {
  EnterSchedule();
  EnterRoom(S("101"), {S("Wall Paint"), S("WALLS")}, S("9"));
  EnterRoom(S("102"), {S("Wall Paint"), S("WALLS")}, QString());
  EXPECT_EQ(Room(S("102")).first(), S("9"));
}

TEST_F(TakeoffTest, ARoomSavedWithNoLinesAndNoHeightWritesCopyHeightOnly) {
  EnterSchedule();
  Enter(rfs.Room, S("101"));
  rfs.CopyHeight = S("10");
  rfs.How.Clear();
  rfs.Record().SaveRoom();
  EXPECT_EQ(Room(S("101")), QStringList{S("10")});
  EXPECT_EQ(rfs.How.Text(), S("10"));
}

TEST_F(TakeoffTest, AutoRoomGoesOnToTheNextName) {
  EnterSchedule();
  Choose(rfs.AutoRoom);
  EXPECT_EQ(rfs.AutoRoom.Caption(), S("AutoRoom is ON"));
  EnterRoom(S("101"), {S("Wall Paint"), S("WALLS")}, S("8"));
  EXPECT_EQ(rfs.Room.Text(), S("102"));
  EXPECT_EQ(FocusName(), S("RFSForm.Description"));
  EXPECT_EQ(rfs.How.Text(), S("8"));
  EXPECT_EQ(Rooms(), (QStringList{S("101"), S("True"), S("102"), S("True")}));
  Enter(S("Carpet"));
  Enter(S("FLR"));
  Enter(QString());
  Enter(S("9"));
  EXPECT_EQ(Room(S("102")), (QStringList{S("9"), Line(S("Carpet"), S("FLR"), S("0"), S("SY"))}));
  EXPECT_EQ(rfs.Room.Text(), S("103"));
  Choose(rfs.AutoRoom);
  EXPECT_EQ(rfs.AutoRoom.Caption(), S("AutoRoom is OFF"));
}

TEST_F(TakeoffTest, AutoRoomNamesOfEveryKind) {
  const QStringList table = {S("Room 9"), S("Room10"), S("7"),   S("8"),     S("99"),
                             S("00"),     S("A99"),    S("A00"), S("Lobby"), S("Lobb1")};
  EnterSchedule();
  Choose(rfs.AutoRoom);
  for (qsizetype i = 0; i < table.size(); i += 2) {
    EnterRoom(table[i], {}, S("8"));
    EXPECT_EQ(rfs.Room.Text(), table[i + 1]);
  }
}

TEST_F(TakeoffTest, AutoRoomShowsAnEmptyListForARoomThatHasLines) {
  EnterSchedule();
  EnterRoom(S("102"), {S("Wall Paint"), S("WALLS")}, S("9"));
  Choose(rfs.AutoRoom);
  EnterRoom(S("101"), {S("Wall Paint"), S("WALLS")}, S("8"));
  EXPECT_EQ(rfs.Room.Text(), S("102"));
  EXPECT_EQ(rfs.How.Text(), S("9"));
  EXPECT_TRUE(rfs.RoomList.Empty());
  EXPECT_EQ(Room(S("102")).size(), 2);
}

TEST_F(TakeoffTest, AutoRoomStaysOnBehindTheCaptionOff) {
  EnterSchedule();
  Choose(rfs.AutoRoom);
  Choose(rfs.Exit);
  EXPECT_EQ(shared.DriveBy, S("True"));
  EnterSchedule();
  EXPECT_EQ(rfs.AutoRoom.Caption(), S("AutoRoom is OFF"));
  EnterRoom(S("101"), {}, S("8"));
  EXPECT_EQ(rfs.Room.Text(), S("102"));
}

TEST_F(TakeoffTest, AutoRoomRefusesANameThatIsNoFileName) {
  EnterSchedule();
  Choose(rfs.AutoRoom);
  EnterRoom(S("COMA"), {}, S("8"));
  EXPECT_EQ(TakeMessages().size(), 1);
  EXPECT_EQ(Rooms(), (QStringList{S("COMA"), S("True")}));
}

}  // namespace
}  // namespace tamo::test
