#include "takeoff/roomrecord.h"

#include "common/failure.h"
#include "common/numbers.h"
#include "records/namelists.h"
#include "records/roomfile.h"
#include "records/sheetnames.h"
#include "records/storable.h"
#include "takeoff/listchange.h"

namespace tamo {

void RoomRecord::LoadRooms() {
  QStringList names;
  ReadRoomNames(kit_.files, kit_.shared, names);
  screen_.RoomsList.SetRows(names);
  screen_.UpdateStatus();
}

void RoomRecord::SaveRooms() {
  steps_.Stores(ProjectFolder(kit_.shared).RoomNames());
  WriteRoomNames(kit_.files, kit_.shared, screen_.RoomsList.Rows());
}

void RoomRecord::LoadRoom() {
  const QString room = screen_.Room.Text();
  screen_.RoomList.Clear();
  RoomFile file;
  ReadRoomFile(kit_.files, kit_.shared, room, file);
  lines_.Begin(room);
  if (file.hasHeight) {
    screen_.How.SetText(file.height);
    screen_.CopyHeight = file.height;
    file.lines.removeAll(QString());
    screen_.RoomList.AddAll(file.lines);
  }
  screen_.UpdateStatus();
  // Last, since a height beyond all numbers fails here and must not leave the room half loaded.
  if (file.hasHeight && screen_.Entering()) screen_.place.height = GroupedValue(file.height);
}

void RoomRecord::SaveRoom() {
  RequireStorable();
  if (screen_.How.Empty()) screen_.How.SetText(screen_.CopyHeight);
  steps_.Stores(ProjectFolder(kit_.shared).RoomFile(screen_.Room.Text()));
  WriteRoomFile(kit_.files, kit_.shared, screen_.Room.Text(), screen_.How.Text(),
                screen_.RoomList.Rows());
  reports_.PrintReport();
}

void RoomRecord::LoadAreas() {
  QStringList names;
  ReadNames(kit_.files, kit_.shared, NameList::FinishAreas, names);
  screen_.AreaList.SetRows(names);
  areasRead_ = names;
}

void RoomRecord::SaveAreas() {
  const QStringList names = screen_.AreaList.Rows();
  steps_.Stores(NamesFile(kit_.shared, NameList::FinishAreas), true);
  WriteNames(kit_.files, kit_.shared, NameList::FinishAreas, names, areasRead_);
  areasRead_ = names;
}

// A found room keeps the field's spelling; its file is found whatever its case.
void RoomRecord::EnterRoom() {
  const QString room = screen_.Room.Text();
  RequireName(QStringLiteral("room"), room);
  screen_.place.room = screen_.RoomsList.FindAnyCase(room);
  if (screen_.place.room >= 0) return;
  steps_.Begin(QStringLiteral("the new room \"%1\"").arg(room), screen_);
  screen_.RoomsList.Add(room);
  screen_.place.room = screen_.RoomsList.Count() - 1;
  SaveRooms();
}

bool RoomRecord::FollowName() {
  if (!lines_.OfOpenProject() || NameStands()) return true;
  bool loaded = false;
  kit_.desk.Dispatch([&] {
    EnterRoom();
    LoadRoom();
    loaded = true;
  });
  if (!loaded) kit_.desk.Focus(screen_.Room);
  return loaded;
}

void RoomRecord::ReadAgain() {
  if (!lines_.OfOpenProject()) return;
  const ProjectFolder project(kit_.shared);
  if (NamesAreBehind(kit_.files, kit_.shared, NameList::FinishAreas)) LoadAreas();
  if (kit_.files.IsBehind(project.RoomNames())) ReadNamesAgain();
  const QString room = screen_.Room.Text();
  if (!room.isEmpty() && NameStands() && kit_.files.IsBehind(project.RoomFile(room)))
    ReadLinesAgain();
  screen_.UpdateStatus();
}

void RoomRecord::ReadNamesAgain() {
  QStringList names;
  if (ReadRoomNames(kit_.files, kit_.shared, names) != kNoError) return;
  const QStringList before = screen_.RoomsList.Rows();
  screen_.RoomsList.Refill(names);
  screen_.place.room = screen_.RoomsList.RowAfter(before, screen_.place.room);
}

void RoomRecord::ReadLinesAgain() {
  RoomFile file;
  if (ReadRoomFile(kit_.files, kit_.shared, screen_.Room.Text(), file) != kNoError) return;
  file.lines.removeAll(QString());
  const QStringList before = screen_.RoomList.Rows();
  screen_.RoomList.Refill(file.lines);
  screen_.place.line = screen_.RoomList.RowAfter(before, screen_.place.line);
  if (screen_.How.Empty()) screen_.How.SetText(file.height);
  if (screen_.CopyHeight.isEmpty()) screen_.CopyHeight = file.height;
}

QString RoomRecord::SheetFile() const {
  const QString room = screen_.Room.Text();
  if (room.isEmpty() || !lines_.AreOf(room)) return {};
  return ProjectFolder(kit_.shared).RoomFile(room);
}

void RoomRecord::FollowFiles(const QStringList& paths) {
  if (!lines_.OfOpenProject()) return;
  if (paths.contains(NamesFile(kit_.shared, NameList::FinishAreas))) LoadAreas();
  const QString file = SheetFile();
  if (paths.contains(ProjectFolder(kit_.shared).RoomNames())) {
    const bool listed = screen_.RoomsList.FindAnyCase(screen_.Room.Text()) >= 0;
    ReadNamesAgain();
    if (listed && !file.isEmpty() && screen_.RoomsList.FindAnyCase(screen_.Room.Text()) < 0) {
      LeaveRoom();
      return;
    }
  }
  if (!file.isEmpty() && paths.contains(file)) ReadChangedLines();
  screen_.UpdateStatus();
}

void RoomRecord::LeaveRoom() {
  ForgetLines();
  screen_.Room.Clear();
  screen_.place.room = -1;
  kit_.shared.IAmHere.clear();  // no measure waits in the room any more
  if (kit_.desk.Active() == &screen_) kit_.desk.Focus(screen_.Room);
}

void RoomRecord::ReadChangedLines() {
  RoomFile file;
  const int error = ReadRoomFile(kit_.files, kit_.shared, screen_.Room.Text(), file);
  if (error != kNoError && !IsMissing(error)) return;
  file.lines.removeAll(QString());
  ChangeRows(screen_.RoomList, file.lines);
}

void RoomRecord::ForgetLines() {
  screen_.RoomList.Clear();
  lines_.Forget();
}

void RoomRecord::FollowProject() {
  if (lines_.OfOpenProject()) return;
  for (TextField* field : {&screen_.Room, &screen_.Description, &screen_.Area, &screen_.Units,
                           &screen_.How, &screen_.Length})
    field->Clear();
  screen_.CopyHeight.clear();
  screen_.Lengths.Clear();
  screen_.place.room = -1;
  screen_.place.line = -1;
  screen_.measured.Forget();
  ForgetLines();
  lines_.FollowProject();
}

}  // namespace tamo
