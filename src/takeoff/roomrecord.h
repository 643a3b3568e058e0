#pragma once

#include "common/kit.h"
#include "takeoff/linesinwork.h"
#include "takeoff/rfsscreen.h"
#include "takeoff/takingback.h"

namespace tamo {

// The room on the screen as it stands in the project: RoomList is written whole to the room's file
// at each Enter that changes something. Operations that can't store raise a RunTimeFailure that
// says why, before anything on the screen changes.
class RoomRecord {
 public:
  // All of it outlives this.
  RoomRecord(RFSScreen& screen, const Kit& kit, TakeoffReportRefresh& reports, TakingBack& steps)
      : screen_(screen), kit_(kit), reports_(reports), steps_(steps) {}

  void LoadRooms();  // the names of the project's rooms
  void SaveRooms();
  void LoadRoom();  // the room named in Room, with its height
  void SaveRoom();
  void LoadAreas();  // the finish areas of all projects
  void SaveAreas();

  // The room named in Room is the room in work; a new name goes to the end of the list.
  void EnterRoom();
  // Another name than that of the lines below, left without Enter: its own lines come up. The focus
  // goes where the estimator sent it, or back to a name that is refused, which answers false.
  bool FollowName();
  // No other name stands in Room than that of the lines below (one that was refused, say).
  bool NameStands() const { return screen_.Room.Empty() || lines_.AreOf(screen_.Room.Text()); }
  void RequireStorable() const { lines_.RequireStorable(screen_.Room.Text()); }
  // What is behind its file is read again; the estimator stays where he is.
  void ReadAgain();
  // The same of files that were changed on purpose. A room that is off the list leaves the screen.
  void FollowFiles(const QStringList& paths);
  QString SheetFile() const;  // of the room whose lines stand on the screen; "" for none
  void ForgetLines();         // no room's lines stand on the screen
  // When another project is open than the one whose room stands here, nothing of it may be stored
  // there. What Copy Room took stays.
  void FollowProject();

 private:
  void ReadNamesAgain();
  void ReadLinesAgain();
  void ReadChangedLines();
  void LeaveRoom();

  RFSScreen& screen_;
  const Kit kit_;
  TakeoffReportRefresh& reports_;
  TakingBack& steps_;
  LinesInWork lines_{kit_.shared, "room"};
  QStringList areasRead_;  // the finish areas when they were last read or written
};

}  // namespace tamo
