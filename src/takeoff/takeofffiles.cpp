#include "takeoff/takeofffiles.h"

#include "common/failure.h"
#include "common/paths.h"

namespace tamo {
namespace {

QString RoomsFile(const SharedFields& shared, const QString& name) {
  return shared.ProjectPath() + QStringLiteral("Rooms") + shared.Separator + name;
}

QString AreasFile(const SharedFields& shared, const QString& name) {
  return shared.ProjectPath() + QStringLiteral("ATOs") + shared.Separator + name;
}

int ReadPairs(Files& files, const QString& path, QStringList& names) {
  QStringList lines;
  const int error = files.ReadLines(path, lines);
  names.clear();
  for (qsizetype i = 0; i < lines.size(); i += 2) names += lines[i];
  return error;
}

int WritePairs(Files& files, const QString& path, const QStringList& names) {
  QStringList lines;
  for (const QString& name : names) {
    lines += name;
    lines += QStringLiteral("True");
  }
  return files.SaveLines(path, lines);
}

}  // namespace

void RequireName(const QString& what, const QString& name) {
  if (name.isEmpty()) {
    throw RunTimeFailure(
        kInvalidArgument,
        QStringLiteral("No %1 is named, so nothing can be stored. Type the name of the %1 and "
                       "press Enter first.")
            .arg(what));
  }
  const QString refusal = NameRefusal(name);
  if (!refusal.isEmpty()) throw RunTimeFailure(kInvalidArgument, refusal);
}

QString ProjectFolder(const SharedFields& shared, const QString& jobId) {
  return shared.DataPath + QStringLiteral("Projects") + shared.Separator + jobId + shared.Separator;
}

int ReadRoomNames(Files& files, const SharedFields& shared, QStringList& names) {
  return ReadPairs(files, RoomsFile(shared, QStringLiteral("Rooms.tamo")), names);
}
int WriteRoomNames(Files& files, const SharedFields& shared, const QStringList& names) {
  return WritePairs(files, RoomsFile(shared, QStringLiteral("Rooms.tamo")), names);
}
int ReadAreaNames(Files& files, const SharedFields& shared, QStringList& names) {
  return ReadPairs(files, AreasFile(shared, QStringLiteral("Areas.tamo")), names);
}
int WriteAreaNames(Files& files, const SharedFields& shared, const QStringList& names) {
  return WritePairs(files, AreasFile(shared, QStringLiteral("Areas.tamo")), names);
}

RoomFile RoomFileOf(const QStringList& wholeLines) {
  RoomFile file;
  if (wholeLines.isEmpty()) return file;
  file.hasHeight = true;
  file.height = wholeLines.first();
  file.lines = wholeLines.mid(1);
  return file;
}

int ReadRoomFile(Files& files, const SharedFields& shared, const QString& room, RoomFile& file) {
  file = {};
  if (!NameRefusal(room).isEmpty()) return kFileNotFound;
  QStringList lines;
  const int error = files.ReadLines(RoomsFile(shared, room + QStringLiteral(".rfs")), lines);
  file = RoomFileOf(lines);
  return error;
}

int WriteRoomFile(Files& files, const SharedFields& shared, const QString& room,
                  const QString& height, const QStringList& lines) {
  QStringList all(height);
  for (const QString& line : lines) {
    if (!line.isEmpty()) all += line;
  }
  return files.SaveLines(RoomsFile(shared, room + QStringLiteral(".rfs")), all);
}

int ReadAreaFields(Files& files, const SharedFields& shared, const QString& area,
                   QStringList& lines) {
  lines.clear();
  if (!NameRefusal(area).isEmpty()) return kFileNotFound;
  return files.ReadFields(AreasFile(shared, area + QStringLiteral(".ato")), lines);
}

int ReadAreaLines(Files& files, const SharedFields& shared, const QString& area,
                  QStringList& lines) {
  lines.clear();
  if (!NameRefusal(area).isEmpty()) return kFileNotFound;
  return files.ReadLines(AreasFile(shared, area + QStringLiteral(".ato")), lines);
}

int WriteAreaFile(Files& files, const SharedFields& shared, const QString& area,
                  const QStringList& lines) {
  return files.SaveLines(AreasFile(shared, area + QStringLiteral(".ato")), lines);
}

int ReadFinishAreas(Files& files, const SharedFields& shared, QStringList& names) {
  return files.ReadLines(shared.DataPath + QStringLiteral("Areas.tamo"), names);
}
int WriteFinishAreas(Files& files, const SharedFields& shared, const QStringList& names) {
  return files.SaveLines(shared.DataPath + QStringLiteral("Areas.tamo"), names);
}

int ReadSystemNames(Files& files, const SharedFields& shared, QStringList& names) {
  return files.ReadFields(shared.DataPath + QStringLiteral("Descriptions.tamo"), names);
}
int WriteSystemNames(Files& files, const SharedFields& shared, const QStringList& names) {
  return files.SaveLines(shared.DataPath + QStringLiteral("Descriptions.tamo"), names);
}

int ReadItemNames(Files& files, const SharedFields& shared, QStringList& names) {
  return files.ReadFields(shared.DataPath + QStringLiteral("Items.tamo"), names);
}
int WriteItemNames(Files& files, const SharedFields& shared, const QStringList& names) {
  return files.SaveLines(shared.DataPath + QStringLiteral("Items.tamo"), names);
}

int ReadItemLines(Files& files, const SharedFields& shared, QStringList& lines) {
  return files.ReadFields(shared.ProjectPath() + QStringLiteral("oItems.tamo"), lines);
}
int WriteItemLines(Files& files, const SharedFields& shared, const QString& jobId,
                   const QStringList& lines) {
  return files.SaveLines(ProjectFolder(shared, jobId) + QStringLiteral("oItems.tamo"), lines);
}

int ReadAdjustment(Files& files, const SharedFields& shared, QString& amount) {
  QStringList fields;
  const int error =
      files.ReadFields(shared.ProjectPath() + QStringLiteral("Adjustment.tamo"), fields);
  if (error == kNoError && !fields.isEmpty()) amount = fields.first();
  return error;
}
int WriteAdjustment(Files& files, const SharedFields& shared, const QString& amount) {
  return files.SaveLines(shared.ProjectPath() + QStringLiteral("Adjustment.tamo"), {amount});
}

void RequireReadable(int error, const QString& what) {
  if (error == kNoError || error == kFileNotFound || error == kPathNotFound) return;
  const QString reason = error == kNoAccess ? QStringLiteral("access to its file is denied")
                                            : QStringLiteral("the device reports a failure");
  throw RunTimeFailure(
      error, QStringLiteral("%1 could not be read: %2. Nothing is stored over it, so that nothing "
                            "is lost; see to the file, then open this window again.")
                 .arg(what, reason));
}

}  // namespace tamo
