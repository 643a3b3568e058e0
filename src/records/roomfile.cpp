#include "records/roomfile.h"

#include "common/failure.h"
#include "common/paths.h"

namespace tamo {

RoomFile RoomFileOf(const QStringList& wholeLines) {
  RoomFile file;
  if (wholeLines.isEmpty()) return file;
  file.hasHeight = true;
  file.height = wholeLines.first();
  file.lines = wholeLines.mid(1);
  return file;
}

QStringList RoomFileLines(const QString& height, const QStringList& lines) {
  QStringList all(height);
  for (const QString& line : lines) {
    if (!line.isEmpty()) all += line;
  }
  return all;
}

int ReadRoomFile(Files& files, const ProjectFolder& project, const QString& room, RoomFile& file) {
  file = {};
  if (!NameRefusal(room).isEmpty()) return kFileNotFound;
  QStringList lines;
  const int error = files.ReadLines(project.RoomFile(room), lines);
  file = RoomFileOf(lines);
  return error;
}

int WriteRoomFile(Files& files, const ProjectFolder& project, const QString& room,
                  const QString& height, const QStringList& lines) {
  return files.SaveLines(project.RoomFile(room), RoomFileLines(height, lines));
}

}  // namespace tamo
