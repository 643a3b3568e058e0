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

std::vector<QStringView> ScanSheetNames(QStringView text) {
  std::vector<QStringView> names;
  LineScanner lines(text);
  QStringView line;
  while (lines.Next(line)) {
    names.push_back(line);
    lines.Next(line);
  }
  return names;
}

QStringList SheetNamesOf(const QString& text) {
  QStringList names;
  for (const QStringView name : ScanSheetNames(text)) names += name.toString();
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
  return files.SaveLines(project.RoomNames(), SheetNamesLines(names), FileKind::Pairs);
}

int ReadAreaNames(Files& files, const ProjectFolder& project, QStringList& names) {
  return ReadPairs(files, project.AreaNames(), names);
}

int WriteAreaNames(Files& files, const ProjectFolder& project, const QStringList& names) {
  return files.SaveLines(project.AreaNames(), SheetNamesLines(names), FileKind::Pairs);
}

}  // namespace tamo
