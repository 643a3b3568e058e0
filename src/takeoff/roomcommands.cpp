#include "takeoff/roomcommands.h"

#include "records/roomline.h"

namespace tamo {

RoomCommands::RoomCommands(RFSScreen& screen, RoomRecord& record, const Kit& kit, TakingBack& steps)
    : screen_(screen), record_(record), kit_(kit), steps_(steps) {
  const auto rooms = [this] { screen_.PopUp(screen_.RmsPopup); };
  screen_.Room.onRightClick = rooms;
  screen_.RoomsList.onRightClick = rooms;
  screen_.RoomList.onRightClick = [this] { screen_.PopUp(screen_.RmList); };
  screen_.RmsDelete.onClick = [this] { DeleteRoom(); };
  screen_.RmListDelete.onClick = [this] { DeleteLine(); };
  screen_.RmListInsert.onClick = [this] { InsertLine(); };
  screen_.CopyRoom.onClick = [this] { CopyLines(); };
  screen_.PasteRoom.onClick = [this] { PasteLines(); };
}

// The room that follows in the list goes, too (held by a test); the files of both stay.
void RoomCommands::DeleteRoom() {
  const QString room = screen_.Room.Text();
  if (room.isEmpty()) return;
  OrderedList& rooms = screen_.RoomsList;
  const int at = rooms.Find(room);
  if (at < 0) {
    kit_.desk.GetMessages().Tell(
        QStringLiteral("There is no room \"%1\" in the list of rooms. Nothing was deleted.")
            .arg(room));
    return;
  }
  steps_.Begin(QStringLiteral("the deletion of the room \"%1\"").arg(room), screen_);
  QString gone = QStringLiteral("\"%1\" is").arg(room);
  rooms.Remove(at);
  if (at < rooms.Count()) {
    gone = QStringLiteral("\"%1\" and \"%2\" are").arg(room, rooms.Row(at));
    rooms.Remove(at);
  }
  record_.ForgetLines();
  screen_.Room.Clear();
  screen_.place.room = -1;
  kit_.shared.IAmHere.clear();  // no measure waits in the room any more
  record_.SaveRooms();
  rooms.Show();
  screen_.StatusText.SetCaption(
      gone + QStringLiteral(" off the list. Typing a name again brings it back with its lines."));
}

bool RoomCommands::LineIsSelected() {
  if (!record_.FollowName() || screen_.RoomList.Index() < 0) return false;
  record_.RequireStorable();
  return true;
}

void RoomCommands::DeleteLine() {
  if (!LineIsSelected()) return;
  const QString system = RoomLine(screen_.RoomList.Selected()).System();
  steps_.Begin(
      QStringLiteral("the deletion of %1 in \"%2\"")
          .arg(system.isEmpty() ? QStringLiteral("an empty line") : system, screen_.Room.Text()),
      screen_);
  screen_.RoomList.Remove(screen_.RoomList.Index());
  screen_.Description.Clear();
  screen_.Area.Clear();
  screen_.Lengths.Clear();
  kit_.desk.Focus(screen_.Description);
  record_.SaveRoom();
  screen_.UpdateStatus();
}

// The empty slot is filled by the next new system; it is never stored.
void RoomCommands::InsertLine() {
  if (!LineIsSelected()) return;
  steps_.Begin(QStringLiteral("the empty line in \"%1\"").arg(screen_.Room.Text()), screen_);
  screen_.RoomList.Insert(screen_.RoomList.Index(), QString());
  record_.SaveRoom();
  screen_.UpdateStatus();
}

void RoomCommands::CopyLines() {
  if (!record_.FollowName()) return;
  screen_.CopyHeight1 = screen_.How.Text();
  screen_.CopyRoomList.SetRows(screen_.RoomList.Rows());
}

void RoomCommands::PasteLines() {
  if (screen_.CopyRoomList.Empty() || !record_.FollowName()) return;
  record_.RequireStorable();
  steps_.Begin(QStringLiteral("the lines pasted into \"%1\"").arg(screen_.Room.Text()), screen_);
  screen_.RoomList.SetRows(screen_.CopyRoomList.Rows());
  screen_.How.SetText(screen_.CopyHeight1);
  screen_.CopyHeight = screen_.CopyHeight1;
  record_.SaveRoom();
  screen_.place.quiet = true;
  screen_.RoomList.SetIndex(screen_.RoomList.Count() - 1);
  screen_.place.quiet = false;
  screen_.UpdateStatus();
}

}  // namespace tamo
