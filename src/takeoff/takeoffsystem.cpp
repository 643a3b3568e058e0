#include "takeoff/takeoffsystem.h"

#include "common/failure.h"
#include "common/paths.h"
#include "records/systemfile.h"

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
  SystemHead head;
  error = kFileNotFound;
  if (NameRefusal(name).isEmpty()) {
    error = ReadSystemHeadDelimited(files, CopyPath(shared, name), head);
    if (error == kFileNotFound) {
      const int import = ImportTakeoffSystem(files, shared, name, fetched);
      // A library that can't be read now does not say that there is no such system.
      const bool unread = import != kNoError && !IsMissing(import);
      error = ReadSystemHeadDelimited(
          files, unread ? DataFolder(shared).SystemFile(name) : CopyPath(shared, name), head);
    }
    // A project whose folder for systems is gone can't take a copy; the line still gets its unit.
    if (error == kPathNotFound) {
      error = ReadSystemHeadDelimited(files, DataFolder(shared).SystemFile(name), head);
    }
  }
  TakeoffSystem system;
  // Of a file that can't be read now the head is the one that it had when it could.
  if (!IsMissing(error)) system.units = head.units;
  system.lineColour = IsMissing(error) ? QString() : head.lineColor;
  if (system.lineColour.size() != 9) system.lineColour = shared.SettingsLineColor;
  return system;
}

}  // namespace tamo
