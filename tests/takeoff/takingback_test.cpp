#include "takeoff/takingback.h"

#include <QDirIterator>
#include <QMap>
#include <random>

#include "records/datafolder.h"
#include "takeoff/takeoffbench.h"

namespace tamo::test {
namespace {

QString S(const char* text) {
  return QString::fromUtf8(text);
}

class TakingBackTest : public AreasTest {
 protected:
  QString Back() { return Said(Key::Name::TakeBack); }
  QString Again() { return Said(Key::Name::BringBack); }
  QString Said(Key::Name key) {
    Press(key);
    return (rfs.Visible() && desk.Active() == &rfs ? rfs.StatusText : ato.StatusText).Caption();
  }
  // Every file of the data folder.
  QMap<QString, QByteArray> All() const {
    QMap<QString, QByteArray> all;
    QDirIterator walk(data, QDir::Files, QDirIterator::Subdirectories);
    while (walk.hasNext()) {
      const QString path = walk.next();
      all[path] = Bytes(path);
    }
    return all;
  }
  // A room with a surface, a length and a count, in the takeoff, at its first line.
  void TakeOffOneRoom() {
    EnterSchedule();
    EnterRoom(S("101"),
              {S("Wall Paint"), S("WALLS"), S("Rubber Base"), S("BASE"), S("HM Door"), S("DOORS")},
              S("9"));
    rfs.Exit.onClick();
    shared.DriveBy = S("False");
    TakeOff();
  }
};

TEST_F(TakingBackTest, ALengthGoesAndComesBack) {
  TakeOffOneRoom();
  Enter(rfs.How, S("8"));
  const auto before = All();
  Enter(S("10.3"));
  const auto after = All();
  EXPECT_EQ(Room(S("101"))[1], Line(S("Wall Paint"), S("WALLS"), S("82"), S("SF")));
  EXPECT_EQ(Back(),
            S("Taken back: 8 X 10.3 of Wall Paint, WALLS in \"101\". Ctrl+Y brings it back."));
  EXPECT_EQ(All(), before);
  EXPECT_EQ(rfs.RoomList.Row(0), Line(S("Wall Paint"), S("WALLS"), S("0"), S("SF")));
  EXPECT_EQ(rfs.RoomList.Index(), 0);
  EXPECT_EQ(rfs.How.Text(), S("8"));
  EXPECT_TRUE(rfs.Lengths.Empty());
  EXPECT_EQ(FocusName(), S("RFSForm.Length"));
  EXPECT_EQ(Again(), S("Brought back: 8 X 10.3 of Wall Paint, WALLS in \"101\"."));
  EXPECT_EQ(All(), after);
  EXPECT_EQ(rfs.Lengths.Rows(), QStringList{S("8 X 10.3")});
  Back();
  Enter(S("20"));
  EXPECT_EQ(Room(S("101"))[1], Line(S("Wall Paint"), S("WALLS"), S("160"), S("SF")));
}

// The walk puts the height of the room back into its file: it goes with the entry before it.
TEST_F(TakingBackTest, AnEntryIsTakenBackFromTheNextLine) {
  TakeOffOneRoom();
  const auto before = All();
  Enter(rfs.How, S("8"));
  Enter(S("10"));
  Enter(QString());
  Enter(QString());
  EXPECT_EQ(rfs.RoomList.Index(), 1);
  const auto after = All();
  EXPECT_TRUE(Back().startsWith(S("Taken back: 8 X 10 of Wall Paint")));
  EXPECT_EQ(All(), before);
  EXPECT_EQ(rfs.RoomList.Index(), 1);
  EXPECT_EQ(FocusName(), S("RFSForm.Length"));
  Again();
  EXPECT_EQ(All(), after);
}

TEST_F(TakingBackTest, ADeletedLineAndAPastedRoomComeBack) {
  TakeOffOneRoom();
  Enter(rfs.How, S("8"));
  Enter(S("10"));
  Choose(rfs.CopyRoom);
  const auto before = All();
  Choose(rfs.RmListDelete);
  const auto deleted = All();
  EXPECT_EQ(Room(S("101")).size(), 3);
  Choose(rfs.PasteRoom);
  EXPECT_EQ(Room(S("101")).size(), 4);
  EXPECT_TRUE(Back().contains(S("the lines pasted into \"101\"")));
  EXPECT_EQ(All(), deleted);
  EXPECT_EQ(rfs.RoomList.Count(), 2);
  EXPECT_TRUE(Back().contains(S("the deletion of Wall Paint in \"101\"")));
  EXPECT_EQ(All(), before);
  EXPECT_EQ(rfs.RoomList.Count(), 3);
}

TEST_F(TakingBackTest, DeletedRoomsComeBackAndANewRoomLeavesTheScreen) {
  TakeOffOneRoom();
  const QStringList rooms = Rooms();
  desk.UserFocus(rfs.Room);
  Choose(rfs.RmsDelete);
  EXPECT_TRUE(Rooms().isEmpty());
  EXPECT_TRUE(Back().contains(S("the deletion of the room \"101\"")));
  EXPECT_EQ(Rooms(), rooms);
  Enter(rfs.Room, S("102"));
  EXPECT_EQ(FocusName(), S("RFSForm.Description"));
  EXPECT_TRUE(Back().contains(S("the new room \"102\"")));
  EXPECT_EQ(Rooms(), rooms);
  EXPECT_TRUE(rfs.Room.Empty());
  EXPECT_EQ(FocusName(), S("RFSForm.Room"));
  EXPECT_TRUE(TakeMessages().isEmpty());
}

TEST_F(TakingBackTest, AreasLikeRoomsAndAcrossForms) {
  const auto start = All();
  TakeOffOneRoom();
  Enter(rfs.How, S("8"));
  Enter(S("10"));
  rfs.Exit.onClick();
  shared.DriveBy = S("False");
  StartArea(S("Yard"));
  Line1(S("Rubber Base"), S("12.4"));
  EXPECT_EQ(Area(S("Yard")), QStringList{ALine(S("Rubber Base"), S("12"), S("LF"))});
  EXPECT_EQ(Back(), S("Taken back: 12.4 of Rubber Base in \"Yard\". Ctrl+Y brings it back."));
  // The line waits again for its first length, as before.
  EXPECT_EQ(ato.AreaList.Rows(), QStringList{ALine(S("Rubber Base"), S("0"), S("LF"))});
  EXPECT_EQ(ato.AreaList.Index(), 0);
  EXPECT_FALSE(Exists(ProjectFolder(shared).AreaFile(S("Yard"))));
  Enter(S("14"));
  EXPECT_EQ(Area(S("Yard")), QStringList{ALine(S("Rubber Base"), S("14"), S("LF"))});
  Choose(ato.SystemDelete);
  EXPECT_EQ(Area(S("Yard")), QStringList());
  EXPECT_TRUE(Back().contains(S("the deletion of Rubber Base in \"Yard\"")));
  EXPECT_EQ(Area(S("Yard")), QStringList{ALine(S("Rubber Base"), S("14"), S("LF"))});
  desk.UserFocus(ato.Area);
  Choose(ato.AreasDelete);
  EXPECT_TRUE(Areas().isEmpty());
  EXPECT_TRUE(Back().contains(S("the deletion of the area \"Yard\"")));
  EXPECT_EQ(Areas(), QStringList({S("Yard"), S("True")}));
  for (int i = 0; i < 2; ++i) EXPECT_TRUE(Back().startsWith(S("Taken back: ")));
  EXPECT_TRUE(Back().contains(S("8 X 10 of Wall Paint, WALLS in \"101\"")));
  EXPECT_EQ(Room(S("101"))[1], Line(S("Wall Paint"), S("WALLS"), S("0"), S("SF")));
  while (Back().startsWith(S("Taken back: "))) {
  }
  EXPECT_TRUE(ato.StatusText.Caption().startsWith(S("Nothing was entered here")));
  auto end = All();
  for (const char* name : {"Wall Paint", "Rubber Base", "HM Door"})
    end.remove(ProjectFolder(shared).SystemFile(QLatin1String(name)));
  EXPECT_EQ(end, start);
}

TEST_F(TakingBackTest, NeverAgainstAChangeMadeElsewhere) {
  TakeOffOneRoom();
  Enter(rfs.How, S("8"));
  Enter(S("10"));
  Enter(S("11"));
  const QString file = ProjectFolder(shared).RoomFile(S("101"));
  const QByteArray theirs = Bytes(file) + "Theirs               X                       1 LF\r\n";
  WriteRaw(file, theirs);
  EXPECT_EQ(Back(),
            S("Not taken back: 8 X 11 of Wall Paint, WALLS in \"101\". The room \"101\" was "
              "changed elsewhere since, and stays as it is."));
  EXPECT_EQ(Bytes(file), theirs);
  EXPECT_TRUE(Back().startsWith(S("Taken back: the new room")));
}

TEST_F(TakingBackTest, ALockedProjectAndAnotherProjectStayAsTheyAre) {
  TakeOffOneRoom();
  Enter(rfs.How, S("8"));
  Enter(S("10"));
  const auto before = All();
  shared.Locked = S("True");
  EXPECT_TRUE(Back().startsWith(S("The project is locked")));
  shared.Locked = S("False");
  shared.ReadOnly = S("Another program has the project open.");
  EXPECT_EQ(Back(), shared.ReadOnly);
  shared.ReadOnly.clear();
  EXPECT_EQ(All(), before);
  OpenProject(S("00-2112002"));
  EXPECT_TRUE(Back().startsWith(S("Nothing was entered here")));
  OpenProject(S("00-2112001"));
  EXPECT_TRUE(Back().startsWith(S("Taken back: 8 X 10")));
}

TEST_F(TakingBackTest, MarksGoWithTheirEntry) {
  TakeOffOneRoom();
  Enter(rfs.How, S("8"));
  marks.measured = {S("10.3"), S("8"), S("7.7")};
  Enter(S("10.3"));
  EXPECT_EQ(marks.measured, QStringList{S("7.7")});
  marks.reaches = false;
  EXPECT_TRUE(Back().contains(S("It was measured on the plan \"Larkspur\": open that plan first")));
  marks.reaches = true;
  Back();
  Again();
  EXPECT_EQ(marks.moved, QStringList({S("off 10.3"), S("off 8"), S("on 10.3"), S("on 8")}));
}

TEST_F(TakingBackTest, AFullDiskKeepsWhatIsTakenBack) {
  TakeOffOneRoom();
  Enter(rfs.How, S("8"));
  const auto before = All();
  disk.SetFull(true);
  Enter(S("10"));
  EXPECT_TRUE(Back().startsWith(S("Taken back: 8 X 10")));
  EXPECT_EQ(All(), before);
  disk.SetFull(false);
  EXPECT_TRUE(files.TryAgain());
  EXPECT_EQ(All(), before);
}

// Its entry waits for the file; what the file holds meanwhile is not known, and not removed.
TEST_F(TakingBackTest, ARoomThatCantBeReadIsNeverRemoved) {
  TakeOffOneRoom();
  Enter(rfs.How, S("8"));
  const QString file = ProjectFolder(shared).RoomFile(S("101"));
  disk.DenyReading(file);
  Enter(S("10"));
  EXPECT_TRUE(Back().startsWith(S("Not taken back: ")));
  disk.AllowReading(file);
  EXPECT_TRUE(disk.Exists(file));
}

TEST_F(TakingBackTest, BytesOfOlderMachinesComeBackAsTheyWere) {
  const QString file = ProjectFolder(shared).RoomFile(S("101"));
  const QByteArray old = "9\nCaf\xe9                 WALLS                   0 SF\n";
  WriteRaw(file, old);
  WriteRaw(ProjectFolder(shared).RoomNames(), "101\r\nTrue\r\n");
  EnterSchedule();
  Enter(rfs.Room, S("101"));
  Enter(S("Wall Paint"));
  Enter(S("WALLS"));
  EXPECT_NE(Bytes(file), old);
  Back();
  EXPECT_EQ(Bytes(file), old);
}

TEST_F(TakingBackTest, AtMostAHundred) {
  TakeOffOneRoom();
  Enter(rfs.How, S("8"));
  for (int i = 0; i < 120; ++i) Enter(S("1"));
  for (int i = 0; i < 100; ++i) ASSERT_TRUE(Back().startsWith(S("Taken back: "))) << i;
  EXPECT_TRUE(Back().startsWith(S("Nothing was entered here")));
  EXPECT_EQ(Room(S("101"))[1], Line(S("Wall Paint"), S("WALLS"), S("160"), S("SF")));
}

// Whatever was entered, in whichever order: all taken back gives the bytes at the start, brought
// back those at the end, and in between only states that there were.
class RandomEntries : public TakingBackTest, public ::testing::WithParamInterface<int> {
 protected:
  std::mt19937 dice{static_cast<unsigned>(GetParam())};

  int Roll(int sides) { return static_cast<int>(dice() % static_cast<unsigned>(sides)); }
  QString One(const QStringList& of) { return of[Roll(static_cast<int>(of.size()))]; }
  QString ASystem() {
    return One({S("Wall Paint"), S("Rubber Base"), S("HM Door"), S("ACT Ceiling"), S("Carpet")});
  }
  QString ANumber() { return One({S("10"), S("7.26"), S("-3"), S("1,200.5"), QString(), S("0")}); }
  void TypeInto(const QString& text) {
    auto* field = dynamic_cast<TextField*>(desk.Focused());
    if (field == nullptr) return;
    field->SelectAll();
    if (text.isEmpty()) desk.PressKey(*field, Key::Named(Key::Name::Delete));
    desk.TypeText(*field, text);
    if (desk.Focused() != nullptr) desk.PressKey(*desk.Focused(), Key::Named(Key::Name::Enter));
  }
  void RoomDeed();
  void AreaDeed();
  void Deed() {
    if (!rfs.Visible() && !ato.Visible()) {
      shared.DriveBy = S("False");
      const int door = Roll(3);
      if (door == 0) EnterSchedule();
      if (door == 1) TakeOff();
      if (door == 2) EnterItems();
    } else if (desk.Active() == &rfs) {
      RoomDeed();
    } else {
      AreaDeed();
    }
    messages.texts.clear();
  }
};

void RandomEntries::RoomDeed() {
  switch (Roll(14)) {
    case 0:
      desk.UserFocus(rfs.Room);
      return TypeInto(One({S("101"), S("102"), S("Lobby")}));
    case 1:
      return Choose(rfs.RmListDelete);
    case 2:
      return Choose(rfs.CopyRoom);
    case 3:
      return Choose(rfs.PasteRoom);
    case 4:
      return Choose(rfs.RmListInsert);
    case 5:
      return Roll(6) == 0 ? Choose(rfs.RmsDelete) : Choose(rfs.AutoRoom);
    case 6:
      return Roll(4) == 0 ? desk.Dispatch([&] { rfs.Exit.onClick(); }) : TypeInto(QString());
    case 7:
      if (!rfs.RoomList.Empty()) desk.ClickRow(rfs.RoomList, Roll(rfs.RoomList.Count()));
      return;
    default:
      if (desk.Focused() == &rfs.Description) return TypeInto(ASystem());
      if (desk.Focused() == &rfs.Area) return TypeInto(One({S("WALLS"), S("CLNG"), S("NEW")}));
      return TypeInto(ANumber());
  }
}

void RandomEntries::AreaDeed() {
  switch (Roll(14)) {
    case 0:
      desk.UserFocus(ato.Area);
      return TypeInto(One({S("Yard"), S("Roof"), S("101")}));
    case 1:
      return Choose(ato.SystemDelete);
    case 2:
      return Choose(ato.CopyArea);
    case 3:
      return Choose(ato.PasteArea);
    case 4:
      return Choose(ato.SystemInsert);
    case 5:
      return Roll(6) == 0 ? Choose(ato.AreasDelete) : Choose(ato.AutoRoom);
    case 6:
      return Roll(4) == 0 ? desk.Dispatch([&] { ato.Exit.onClick(); }) : TypeInto(QString());
    case 7:
      if (!ato.AreaList.Empty()) desk.ClickRow(ato.AreaList, Roll(ato.AreaList.Count()));
      return;
    default:
      if (desk.Focused() == &ato.Area) return TypeInto(One({S("Yard"), S("Roof")}));
      if (desk.Focused() == &ato.eDescription) return TypeInto(ASystem());
      return TypeInto(ANumber());
  }
}

TEST_P(RandomEntries, GoAndComeBackByteForByte) {
  for (const char* name : {"Wall Paint", "Rubber Base", "HM Door", "ACT Ceiling", "Carpet"})
    WriteRaw(ProjectFolder(shared).SystemFile(QLatin1String(name)),
             Bytes(DataFolder(shared).SystemFile(QLatin1String(name))));
  const auto start = All();
  QList<QMap<QString, QByteArray>> seen{start};
  for (int i = 0; i < 90; ++i) {
    Deed();
    if (Roll(8) == 0) back.TakeBack();
    if (Roll(8) == 0) back.BringBack();
    back.EndEvent();
    if (seen.last() != All()) seen += All();
  }
  const auto end = All();
  int taken = 0;
  while (back.TakeBack().startsWith(S("Taken back: "))) {
    ++taken;
    ASSERT_TRUE(seen.contains(All())) << taken;
    if (Roll(4) == 0) {
      const auto here = All();
      ASSERT_TRUE(back.BringBack().startsWith(S("Brought back: ")));
      ASSERT_TRUE(back.TakeBack().startsWith(S("Taken back: ")));
      ASSERT_EQ(All(), here);
    }
  }
  EXPECT_GT(taken, 3);
  EXPECT_EQ(All(), start);
  for (int i = 0; i < taken; ++i) ASSERT_TRUE(back.BringBack().startsWith(S("Brought back: ")));
  EXPECT_EQ(All(), end);
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomEntries, ::testing::Range(1, 41));

}  // namespace
}  // namespace tamo::test
