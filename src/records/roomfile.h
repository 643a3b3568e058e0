#pragma once

#include <QString>
#include <QStringList>

#include "common/files.h"
#include "records/datafolder.h"
#include "records/linescanner.h"

namespace tamo {

// A room of a project as its text is walked without copying it, for whoever reads all of them.
struct RoomScan {
  bool hasHeight = false;  // false for an empty file
  QStringView height;
  LineScanner lines;  // the takeoff lines, empty ones too
};
RoomScan ScanRoom(QStringView text);

// A room of a project: its height (or, in the middle of a takeoff, a width) on the first line, then
// its takeoff lines (RoomLine). Read by whole lines.
struct RoomFile {
  bool hasHeight = false;  // false for an empty file
  QString height;
  QStringList lines;  // as they stand in the file, empty ones too
};
RoomFile RoomFileOf(const QString& text);
// The lines of the file; empty takeoff lines are left out.
QStringList RoomFileLines(const QString& height, const QStringList& lines);

// Error numbers as Files has them; 53 also for a name that no file can have. What could not be read
// is empty.
int ReadRoomFile(Files& files, const ProjectFolder& project, const QString& room, RoomFile& file);
// `room` is a name that was tested with RequireName.
int WriteRoomFile(Files& files, const ProjectFolder& project, const QString& room,
                  const QString& height, const QStringList& lines);

}  // namespace tamo
