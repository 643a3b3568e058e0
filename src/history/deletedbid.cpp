#include "history/deletedbid.h"

#include "common/failure.h"
#include "common/paths.h"
#include "history/bringback.h"

namespace tamo {
namespace {

// The plans are as large as they are: they change their place, and nothing is copied.
void MovePlans(Disk& disk, const QString& from, const QString& to) {
  if (disk.IsLink(BareFolder(from))) return;
  for (const QString& name : disk.Names(BareFolder(from))) {
    const QString path = from + name;
    if (disk.IsFolder(path) || disk.IsLink(path)) continue;
    MakeHistoryFolder(disk, to);
    disk.Rename(path, to + name);
  }
}

// Somebody has brought it back already, and was stopped behind that.
bool Stands(Disk& disk, const HistoryFolder& folder, BidState state) {
  BidState now;
  QString problem;
  if (ReadBidState(disk, folder, state.project, now, problem) != kNoError) return false;
  for (BidState* each : {&now, &state}) {
    each->files.removeIf(
        [&](auto file) { return !file.key().startsWith(FolderOfBid(state.project)); });
  }
  return now == state;
}

}  // namespace

int KeepDeleted(Files& files, const HistoryFolder& folder, const VersionHead& head) {
  Disk& disk = files.GetDisk();
  BidState state;
  QString problem;
  int error = ReadBidState(disk, folder, head.project, state, problem);
  if (error != kNoError) return error;
  for (const QString& level : {folder.Path(), folder.Deleted()}) MakeHistoryFolder(disk, level);
  error = WriteHistoryFile(disk, folder.DeletedState(head.project), VersionText(head, state));
  if (error != kNoError) return error;
  const ProjectFolder project(folder.Whole(FolderOfBid(head.project)), PlatformSeparator());
  MovePlans(disk, project.Plans(), folder.DeletedFiles(head.project));
  return kNoError;
}

int BringBackDeleted(Files& files, const HistoryFolder& folder, const Version& deleted) {
  Disk& disk = files.GetDisk();
  VersionHead head;
  BidState state;
  if (!ReadVersion(disk, deleted.path, head, state)) return kFileOther;
  const ProjectFolder project(folder.Whole(FolderOfBid(head.project)), PlatformSeparator());
  const QString bare = BareFolder(project.Path());
  if (disk.Exists(project.Record()) && !Stands(disk, folder, state)) return kNoAccess;
  MakeProjectFolders(files, project);
  if (!disk.IsFolder(bare)) return kPathNotFound;
  if (const int error = BringBack(files, folder, head, state); error != kNoError) return error;
  const QString plans = folder.DeletedFiles(head.project);
  MovePlans(disk, plans, project.Plans());
  disk.RemoveFolder(BareFolder(plans));
  disk.RemoveFile(deleted.path);
  return kNoError;
}

void ForgetDeleted(Disk& disk, const HistoryFolder& folder, QDate today, int days) {
  for (const Version& deleted : DeletedBids(disk, folder)) {
    const QDate day =
        QDate::fromString(QString::fromLatin1(deleted.head.when.left(10)), Qt::ISODate);
    if (!day.isValid() || day.daysTo(today) <= days) continue;
    const QString plans = folder.DeletedFiles(deleted.head.project);
    for (const QString& file : disk.Names(BareFolder(plans))) disk.RemoveFile(plans + file);
    disk.RemoveFolder(BareFolder(plans));
    disk.RemoveFile(deleted.path);
  }
}

}  // namespace tamo
