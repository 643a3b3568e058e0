#include "records/sheetnames.h"

#include "records/linescanner.h"

namespace tamo {
namespace {

int ReadPairs(Files& files, const QString& path, QStringList& names) {
  QString text;
  const int error = files.ReadText(path, text);
  names = SheetNamesOf(text);
  return error;
}

}  // namespace

// A large bid has tens of thousands of rooms: the lines between the names are not copied.
QStringList SheetNamesOf(const QString& text) {
  QStringList names;
  LineScanner lines(text);
  QStringView line;
  while (lines.Next(line)) {
    names += line.toString();
    lines.Next(line);
  }
  return names;
}

QStringList SheetNamesLines(const QStringList& names) {
  QStringList lines;
  for (const QString& name : names) lines << name << QStringLiteral("True");
  return lines;
}

int ReadRoomNames(Files& files, const ProjectFolder& project, QStringList& names) {
  return ReadPairs(files, project.RoomNames(), names);
}

int WriteRoomNames(Files& files, const ProjectFolder& project, const QStringList& names) {
  return files.SaveLines(project.RoomNames(), SheetNamesLines(names));
}

int ReadAreaNames(Files& files, const ProjectFolder& project, QStringList& names) {
  return ReadPairs(files, project.AreaNames(), names);
}

int WriteAreaNames(Files& files, const ProjectFolder& project, const QStringList& names) {
  return files.SaveLines(project.AreaNames(), SheetNamesLines(names));
}

}  // namespace tamo
