#include "workspace/projectdelete.h"

#include "common/paths.h"

namespace tamo {
namespace {

// Saves that still wait for a place in `folder` must not bring it back.
void DropPendingSaves(Files& files, const QString& folder) {
  const QString inside = folder + PlatformSeparator();
  QStringList waiting;
  for (const Files::Pending& pending : files.PendingSaves()) {
    if (NativePath(pending.path).startsWith(inside, Qt::CaseInsensitive)) waiting << pending.path;
  }
  for (const QString& path : waiting) files.StopTrying(path);
}

bool IsRealFolder(Disk& disk, const QString& path) {
  return disk.IsFolder(path) && !disk.IsLink(path);
}

// Every file and link that stands directly in `folder`.
void RemoveFiles(Disk& disk, const QString& folder) {
  for (const QString& name : disk.Names(folder)) {
    const QString path = InFolder(folder, name);
    if (!IsRealFolder(disk, path)) disk.RemoveFile(path);
  }
}

void RemoveFolder(Disk& disk, const QString& folder) {
  if (!IsRealFolder(disk, folder)) return;
  RemoveFiles(disk, folder);
  disk.RemoveFolder(folder);
}

void StillThere(Disk& disk, const QString& path, QStringList& left) {
  if (!disk.Exists(path) && !disk.IsLink(path)) return;
  left << path;
  if (!IsRealFolder(disk, path)) return;
  for (const QString& name : disk.Names(path)) StillThere(disk, InFolder(path, name), left);
}

}  // namespace

QStringList DeleteProjectFiles(Files& files, const DataFolder& data, const QString& id) {
  if (!NameRefusal(id).isEmpty()) return {};
  Disk& disk = files.GetDisk();
  const QString folder = BareFolder(data.Project(id).Path());
  DropPendingSaves(files, NativePath(folder));
  if (disk.IsLink(folder)) {
    disk.RemoveFile(folder);
  } else if (disk.IsFolder(folder)) {
    // A folder's name is its own in any case, on every platform.
    const QStringList names = disk.Names(folder);
    for (const char* part : kProjectSubFolders) {
      for (const QString& name : names) {
        if (name.compare(QLatin1String(part), Qt::CaseInsensitive) == 0)
          RemoveFolder(disk, InFolder(folder, name));
      }
    }
    RemoveFolder(disk, folder);
  }
  files.ForgetFolder(folder);
  QStringList left;
  StillThere(disk, folder, left);
  return left;
}

bool HoldsProjectFiles(Files& files, const DataFolder& data, const QString& id) {
  Disk& disk = files.GetDisk();
  const QString project = BareFolder(data.Project(id).Path());
  QStringList folders{project};
  for (const char* part : kProjectSubFolders) folders << InFolder(project, QLatin1String(part));
  for (const QString& folder : folders) {
    for (const QString& name : disk.Names(files.Resolved(folder))) {
      const bool sign = name.startsWith(QLatin1String(kInUseName), Qt::CaseInsensitive);
      if (!sign && !disk.IsFolder(InFolder(folder, name))) return true;
    }
  }
  return false;
}

}  // namespace tamo
