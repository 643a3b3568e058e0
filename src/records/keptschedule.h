#pragma once

#include <QString>
#include <QStringList>
#include <vector>

#include "common/files.h"
#include "records/datafolder.h"

namespace tamo {

// A room of the architect's finish schedule as a project keeps it.
struct KeptRoom {
  QString room;       // its name in the project; empty when no room was made of it
  QStringList cells;  // ten: number, name, floor, base, north, east, south, west, ceiling, remarks
  QStringList systems;  // what its codes mean
};

// The schedule that a project's rooms were made of.
struct KeptSchedule {
  std::vector<KeptRoom> rooms;
  QStringList changes;  // what the last revision changed, a sentence each
};

// One line a fact, its parts separated by tabs: "room", the room's name and the ten cells;
// "systems" and the systems of the room before; "change" and a sentence. Other lines are passed
// over. Error numbers as Files has them; without a file the schedule is empty.
int ReadKeptSchedule(Files& files, const ProjectFolder& project, KeptSchedule& schedule);
int WriteKeptSchedule(Files& files, const ProjectFolder& project, const KeptSchedule& schedule);

}  // namespace tamo
