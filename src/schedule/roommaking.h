#pragma once

#include <QString>
#include <functional>
#include <vector>

#include "common/files.h"
#include "common/sharedfields.h"
#include "schedule/plannedrooms.h"

namespace tamo {

// What the making of rooms has written, so that it can be taken back.
struct MadeRoom {
  QString name;
  bool isNew = false;
  QString before;   // the file's text before; of a room that stood already
  QString written;  // its text now
};
struct MadeRooms {
  std::vector<MadeRoom> rooms;  // those that were written
  int lines = 0;
  QString problem;  // which rooms are missing, and why; empty when all are made
};

// Writes the rooms of a plan into the open project. A room that stands already keeps its height and
// its lines, and gets only lines for systems that it has not. Systems come into the project from
// the library, finish areas into their list. Ends at the first file that can't be written; what was
// written are whole rooms.
// `progress` is told after each room, `done` of `all`; false stops behind that room.
MadeRooms MakeRooms(Files& files, const SharedFields& shared, const RoomPlan& plan,
                    const std::function<bool(int done, int all)>& progress = {});

// Takes the rooms back as long as none of them was changed since; else says which was, and leaves
// all of them.
QString TakeBackRooms(Files& files, const SharedFields& shared, const MadeRooms& made);

}  // namespace tamo
