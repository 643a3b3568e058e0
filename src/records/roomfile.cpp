#include "records/roomfile.h"

#include "common/failure.h"
#include "common/paths.h"

namespace tamo {

RoomScan ScanRoom(QStringView text) {
  RoomScan room;
  room.lines = LineScanner(text);
  room.hasHeight = room.lines.Next(room.height);
  return room;
}

RoomFile RoomFileOf(const QString& text) {
  RoomScan room = ScanRoom(text);
  RoomFile file{room.hasHeight, room.height.toString(), {}};
  QStringView line;
  while (room.lines.Next(line)) file.lines += line.toString();
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
  QString text;
  const int error = files.ReadText(project.RoomFile(room), text);
  file = RoomFileOf(text);
  return error;
}

int WriteRoomFile(Files& files, const ProjectFolder& project, const QString& room,
                  const QString& height, const QStringList& lines) {
  return files.SaveLines(project.RoomFile(room), RoomFileLines(height, lines), FileKind::Sheet);
}

}  // namespace tamo
