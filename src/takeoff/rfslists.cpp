// The lists of the schedule: rooms, systems, finish areas, and what the pop-up menus do to them.

#include "common/chain.h"
#include "common/numbers.h"
#include "takeoff/rfsform.h"
#include "takeoff/unitcodes.h"

namespace tamo {

void RFSForm::BindLists() {
  for (OrderedList* list : {&CopyRoomList, &System}) KeepUnseen(*list);
  DropFrom(Room, RoomsList);
  DropFrom(Description, DescriptionsList);
  DropFrom(Area, AreaList);
  DropFrom(Length, Lengths);
  RoomsList.onSelect = [this] { RoomSelected(); };
  RoomsList.onUserScroll = [this] { roomsTop_ = RoomsList.Top(); };
  DescriptionsList.onSelect = [this] { DescriptionSelected(); };
  AreaList.onSelect = [this] { FinishAreaSelected(); };
}

void RFSForm::RoomSelected() {
  if (RoomsList.Index() < 0) return;
  roomsTop_ = RoomsList.Top();
  roomCursor_ = RoomsList.Index();
  Room.SetText(RoomsList.Selected());
  RoomsList.Hide();
  const bool entering = Flag == QLatin1String("Enter");
  heightNumber_ = entering ? 0 : GroupedValue(How.Text());
  LoadRoom();
  // Taking off, the height in use goes on over the one just loaded (held by a test).
  How.SetText(NumberText(heightNumber_));
  if (selectedLine_ >= RoomList.Count()) selectedLine_ = 0;
  if (selectedLine_ >= 0 && selectedLine_ < RoomList.Count() && RoomList.Index() < 0)
    RoomList.SetIndex(selectedLine_);
  if (entering) {
    GetDesk().Focus(Description);
    return;
  }
  LoadSystem();
  const bool needsHeight =
      GroupedValue(How.Text()) == 0 && Units.Text().toUpper() != QLatin1String("LF");
  GetDesk().Focus(needsHeight ? How : Length);
}

void RFSForm::DescriptionSelected() {
  if (DescriptionsList.Index() < 0) return;
  const QString name = DescriptionsList.Selected();
  Description.SetText(name);
  DescriptionsList.Remove(DescriptionsList.Index());
  DescriptionsList.Insert(0, name);
  DescriptionsList.Hide();
  SaveDescriptions();
  TakeSystem();
}

void RFSForm::FinishAreaSelected() {
  if (AreaList.Index() < 0) return;
  lines_.RequireStorable(Room.Text());
  const QString name = AreaList.Selected();
  Area.SetText(name);
  AreaList.Remove(AreaList.Index());
  AreaList.Insert(0, name);
  SaveAreas();
  AreaList.Hide();
  StoreLine();
}

// The room that follows in the list goes, too (held by a test); the files of both stay.
void RFSForm::DeleteRoom() {
  if (Room.Empty()) return;
  const int at = RoomsList.Find(Room.Text());
  if (at < 0) {
    kit_.desk.GetMessages().Tell(
        QStringLiteral("There is no room \"%1\" in the list of rooms. Nothing was deleted.")
            .arg(Room.Text()));
    return;
  }
  QString gone = QStringLiteral("\"%1\" is").arg(RoomsList.Row(at));
  RoomsList.Remove(at);
  if (at < RoomsList.Count()) {
    gone = QStringLiteral("\"%1\" and \"%2\" are").arg(Room.Text(), RoomsList.Row(at));
    RoomsList.Remove(at);
  }
  ForgetLines();
  Room.Clear();
  roomCursor_ = -1;
  kit_.shared.IAmHere.clear();  // no measure waits in the room any more
  SaveRooms();
  RoomsList.Show();
  StatusText.SetCaption(
      gone + QStringLiteral(" off the list. Typing a name again brings it back with its lines."));
}

void RFSForm::DeleteLine() {
  if (!FollowRoomName() || RoomList.Index() < 0) return;
  lines_.RequireStorable(Room.Text());
  RoomList.Remove(RoomList.Index());
  Description.Clear();
  Area.Clear();
  GetDesk().Focus(Description);
  SaveRoom();
  UpdateStatus();
}

// The empty slot is filled by the next new system; it is never stored.
void RFSForm::InsertLine() {
  if (!FollowRoomName() || RoomList.Index() < 0) return;
  lines_.RequireStorable(Room.Text());
  RoomList.Insert(RoomList.Index(), QString());
  SaveRoom();
  UpdateStatus();
}

void RFSForm::CopyLines() {
  if (!FollowRoomName()) return;
  CopyHeight1 = How.Text();
  CopyRoomList.SetRows(RoomList.Rows());
}

void RFSForm::PasteLines() {
  if (CopyRoomList.Empty() || !FollowRoomName()) return;
  lines_.RequireStorable(Room.Text());
  RoomList.Clear();
  How.SetText(CopyHeight1);
  CopyHeight = How.Text();
  RoomList.AddAll(CopyRoomList.Rows());
  SaveRoom();
  suppress_ = true;
  RoomList.SetIndex(RoomList.Count() - 1);
  suppress_ = false;
  UpdateStatus();
}

}  // namespace tamo
