#include "records/sheetnames.h"

namespace tamo {
namespace {

int ReadPairs(Files& files, const QString& path, QStringList& names) {
  QStringList lines;
  const int error = files.ReadLines(path, lines);
  names = SheetNamesOf(lines);
  return error;
}

}  // namespace

QStringList SheetNamesOf(const QStringList& wholeLines) {
  QStringList names;
  names.reserve((wholeLines.size() + 1) / 2);
  for (qsizetype i = 0; i < wholeLines.size(); i += 2) names += wholeLines[i];
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
