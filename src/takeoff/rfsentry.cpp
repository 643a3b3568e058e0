// Entering the schedule: Room, then Description and Area in a loop, then How, then the next Room.

#include "common/chain.h"
#include "common/numbers.h"
#include "records/roomline.h"
#include "records/storable.h"
#include "takeoff/nextname.h"
#include "takeoff/rfsform.h"
#include "takeoff/unitcodes.h"

namespace tamo {

void RFSForm::BindEntry() {
  OnEnter(Room, Keys::FileName, [this] { TakeRoom(); });
  OnFocusSelectAll(Room, [this] { RoomGotFocus(); });
  Room.onLostFocus = [this] {
    kit_.shared.IAmHere.clear();
    FollowRoomName();
  };
  Room.onDoubleClick = [this] { Toggle(RoomsList); };

  OnEnter(
      Description, Keys::Any, [this] { TakeDescription(); }, [this] { LeaveDescription(); });
  HideOnKey(Description, DescriptionsList);
  OnFocusSelectAll(Description, [this] { DescriptionGotFocus(); });
  Description.onLostFocus = [this] {
    kit_.shared.IAmHere.clear();
    DescriptionsList.Hide();
  };
  Description.onDoubleClick = [this] { Toggle(DescriptionsList); };

  OnEnter(Area, [this] {
    lines_.RequireStorable(Room.Text());
    TakeFinishArea();
    StoreLine();
  });
  Area.onGotFocus = [this] {
    LoadAreas();
    Area.Select(static_cast<int>(Area.Text().size()), 0);
    AreaList.Show();
  };
  Area.onLostFocus = [this] { AreaList.Hide(); };
}

void RFSForm::SwitchAutoRoom() {
  autoRoom_ = AutoRoom.Caption() != QLatin1String("AutoRoom is ON");
  AutoRoom.SetCaption(autoRoom_ ? QStringLiteral("AutoRoom is ON")
                                : QStringLiteral("AutoRoom is OFF"));
}

void RFSForm::RoomGotFocus() {
  kit_.shared.IAmHere = QStringLiteral("RR");
  LoadRooms();
  RoomsList.SetTop(roomsTop_);
}

void RFSForm::TakeRoom() {
  RoomsList.Hide();
  if (Room.Empty()) {
    Hide();
    return;
  }
  EnterRoom();
  LoadRoom();
  GetDesk().Focus(Description);
  if (Flag == QLatin1String("Estimate") && !RoomList.Empty()) RoomList.SetIndex(0);
  UpdateStatus();
}

// A found room keeps the field's spelling; its file is found whatever its case.
void RFSForm::EnterRoom() {
  RequireName(QStringLiteral("room"), Room.Text());
  roomCursor_ = RoomsList.FindAnyCase(Room.Text());
  if (roomCursor_ >= 0) return;
  RoomsList.Add(Room.Text());
  roomCursor_ = RoomsList.Count() - 1;
  SaveRooms();
}

// Another name than that of the lines below, left without Enter: its own lines come up. The focus
// goes where the estimator sent it, or back to a name that is refused. False when it was refused.
bool RFSForm::FollowRoomName() {
  if (Room.Empty() || !lines_.OfOpenProject() || lines_.AreOf(Room.Text())) return true;
  bool loaded = false;
  GetDesk().Dispatch([&] {
    EnterRoom();
    LoadRoom();
    loaded = true;
  });
  if (!loaded) GetDesk().Focus(Room);
  return loaded;
}

void RFSForm::DescriptionGotFocus() {
  kit_.shared.IAmHere = QStringLiteral("RD");
  if (DescriptionsList.Empty() || DescriptionsList.Row(0).isEmpty()) LoadDescriptions();
}

void RFSForm::LeaveDescription() {
  GetDesk().Focus(Flag == QLatin1String("Enter") ? How : Room);
}

void RFSForm::TakeDescription() {
  const int at = DescriptionsList.FindAnyCase(Description.Text());
  if (at >= 0) {
    Description.SetText(DescriptionsList.Row(at));
    TakeSystem();
    return;
  }
  kit_.desk.GetMessages().Tell(Description.Text() + QStringLiteral(" System Name Not Found"));
  pricing_.ShowWithName(Description.Text());
}

void RFSForm::TakeSystem() {
  LoadSystem();
  GetDesk().Focus(Area);
}

void RFSForm::TakeFinishArea() {
  AreaList.Hide();
  if (AreaList.Find(Area.Text()) >= 0) return;
  AreaList.Insert(0, Area.Text());
  SaveAreas();
}

// A system stands only once in a room: its line is rewritten, with its quantity; the first empty
// slot takes a system that is new.
void RFSForm::StoreLine() {
  const int at = FindLine(RoomList.Rows(), Description.Text());
  // Another line than the selected one fills Description and Area from the line, so that a finish
  // area typed for it is not taken (held by a test).
  if (at < RoomList.Count()) RoomList.SetIndex(at);
  if (at < RoomList.Count() && !RoomList.Row(at).isEmpty()) {
    RewriteLine(at);
  } else {
    AddLine(at);
  }
  SaveRoom();
  Area.Clear();
  Description.Clear();
  GetDesk().Focus(Description);
  UpdateStatus();
}

void RFSForm::RewriteLine(int at) {
  LoadSystem();
  const QString quantity = RoomLine(RoomList.Row(at)).QuantityText();
  RoomList.SetRow(at, RoomLine::Of(Description.Text(), Area.Text(), quantity, Units.Text()).Text());
}

void RFSForm::AddLine(int at) {
  const QString line =
      RoomLine::Of(Description.Text(), Area.Text(), QStringLiteral("0"), Units.Text()).Text();
  if (at < RoomList.Count()) {
    RoomList.SetRow(at, line);
    return;
  }
  RoomList.Add(line);
  suppress_ = true;
  RoomList.SetIndex(RoomList.Count() - 1);
}

// How in "Enter" mode: the room is finished.
void RFSForm::FinishRoom() {
  lines_.RequireStorable(Room.Text());
  if (How.Empty()) How.SetText(CopyHeight);
  CopyHeight = How.Text();
  SaveRoom();
  plan_.SaveIt();
  if (autoRoom_) NextRoom();
  CopyHeight = How.Text();
  if (!autoRoom_) {
    Room.Clear();
    GetDesk().Focus(Room);
    Lengths.Clear();
    Lengths.Hide();
    for (TextField* field : {&Description, &Units, &Area, &How}) field->Clear();
  }
  // With AutoRoom a room that had lines shows none from here on until it is loaded again (held by a
  // test).
  RoomList.Clear();
  if (!autoRoom_) lines_.Forget();
  UpdateStatus();
}

void RFSForm::NextRoom() {
  const QString next = NextName(Room.Text());
  RequireName(QStringLiteral("room"), next);
  Room.SetText(next);
  roomCursor_ = RoomsList.Find(next);
  if (roomCursor_ < 0) {
    RoomsList.Add(next);
    roomCursor_ = RoomsList.Count() - 1;
    SaveRooms();
  }
  LoadRoom();
  GetDesk().Focus(Description);
}

}  // namespace tamo
