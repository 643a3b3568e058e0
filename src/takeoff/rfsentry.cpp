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
    record_.FollowName();
  };
  Room.onDoubleClick = [this] { Toggle(RoomsList); };

  OnEnter(
      Description, Keys::Any, [this] { TakeDescription(); }, [this] { LeaveDescription(); });
  HideOnKey(Description, DescriptionsList);
  OnFocusSelectAll(Description, [this] {
    kit_.shared.IAmHere = QStringLiteral("RD");
    LoadDescriptionsIfEmpty();
  });
  Description.onLostFocus = [this] {
    kit_.shared.IAmHere.clear();
    DescriptionsList.Hide();
  };
  Description.onDoubleClick = [this] { Toggle(DescriptionsList); };

  OnEnter(Area, [this] {
    record_.RequireStorable();
    BeginLine();
    TakeFinishArea();
    StoreLine();
  });
  Area.onGotFocus = [this] {
    record_.LoadAreas();
    Area.Select(static_cast<int>(Area.Text().size()), 0);
    AreaList.Show();
  };
  Area.onLostFocus = [this] { AreaList.Hide(); };
}

void RFSForm::RoomGotFocus() {
  kit_.shared.IAmHere = QStringLiteral("RR");
  record_.LoadRooms();
  RoomsList.SetTop(place.roomsTop);
}

void RFSForm::TakeRoom() {
  RoomsList.Hide();
  if (Room.Empty()) {
    Hide();
    return;
  }
  record_.EnterRoom();
  record_.LoadRoom();
  GetDesk().Focus(Description);
  if (Flag == QLatin1String("Estimate") && !RoomList.Empty()) RoomList.SetIndex(0);
  UpdateStatus();
}

void RFSForm::LeaveDescription() {
  GetDesk().Focus(Entering() ? How : Room);
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
  record_.SaveAreas();
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
  record_.SaveRoom();
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
  place.quiet = true;
  RoomList.SetIndex(RoomList.Count() - 1);
}

// How in "Enter" mode: the room is finished.
void RFSForm::FinishRoom() {
  record_.RequireStorable();
  steps_.Begin(QStringLiteral("the height") + InSheet(Room.Text()), *this);
  if (How.Empty()) How.SetText(CopyHeight);
  CopyHeight = How.Text();
  record_.SaveRoom();
  plan_.SaveIt();
  if (autoRoom_.On()) NextRoom();
  CopyHeight = How.Text();
  if (!autoRoom_.On()) {
    Room.Clear();
    GetDesk().Focus(Room);
    Lengths.Clear();
    Lengths.Hide();
    for (TextField* field : {&Description, &Units, &Area, &How}) field->Clear();
  }
  // With AutoRoom a room that had lines shows none from here on until it is loaded again (held by a
  // test).
  RoomList.Clear();
  if (!autoRoom_.On()) record_.ForgetLines();
  UpdateStatus();
}

void RFSForm::NextRoom() {
  const QString next = NextName(Room.Text());
  RequireName(QStringLiteral("room"), next);
  Room.SetText(next);
  place.room = RoomsList.Find(next);
  if (place.room < 0) {
    RoomsList.Add(next);
    place.room = RoomsList.Count() - 1;
    record_.SaveRooms();
  }
  record_.LoadRoom();
  GetDesk().Focus(Description);
}

}  // namespace tamo
