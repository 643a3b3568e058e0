#include "takeoff/takeoffsystem.h"

#include "common/failure.h"
#include "common/paths.h"
#include "records/datafolder.h"

namespace tamo {
namespace {

QString CopyFolder(const SharedFields& shared) {
  return ProjectFolder(shared).Systems();
}

QString CopyPath(const SharedFields& shared, const QString& name) {
  return ProjectFolder(shared).SystemFile(name);
}

}  // namespace

int ImportTakeoffSystem(Files& files, const SharedFields& shared, const QString& name,
                        QStringList& fetched) {
  fetched.clear();
  if (!NameRefusal(name).isEmpty()) return kFileNotFound;
  const int error = files.ReadLines(DataFolder(shared).SystemFile(name), fetched);
  if (error != kNoError) return error;
  if (!files.GetDisk().IsFolder(CopyFolder(shared))) return kPathNotFound;
  return files.SaveLines(CopyPath(shared, name), fetched);
}

TakeoffSystem LoadTakeoffSystem(Files& files, const SharedFields& shared, const QString& name,
                                QStringList& fetched, int& error) {
  QStringList fields;
  error = kFileNotFound;
  if (NameRefusal(name).isEmpty()) {
    error = files.ReadFields(CopyPath(shared, name), fields);
    if (error == kFileNotFound) {
      ImportTakeoffSystem(files, shared, name, fetched);
      error = files.ReadFields(CopyPath(shared, name), fields);
    }
    // A project whose folder for systems is gone can't take a copy; the line still gets its unit.
    if (error == kPathNotFound) {
      error = files.ReadFields(DataFolder(shared).SystemFile(name), fields);
    }
  }
  TakeoffSystem system;
  if (error == kNoError) system.units = fields.value(1);
  system.lineColour = error == kNoError ? fields.value(3) : QString();
  if (system.lineColour.size() != 9) system.lineColour = shared.SettingsLineColor;
  return system;
}

}  // namespace tamo
