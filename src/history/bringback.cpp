#include "history/bringback.h"

#include "common/failure.h"
#include "common/paths.h"

namespace tamo {
namespace {

bool OfProject(const BidState& state, const QString& path) {
  return path.startsWith(FolderOfBid(state.project));
}

// Files that the state does not have go first: a name may differ in its case only.
int RemoveOthers(Files& files, const HistoryFolder& folder, const BidState& now,
                 const BidState& state) {
  for (const QString& path : now.files.keys()) {
    if (!OfProject(state, path) || state.files.contains(path)) continue;
    if (const int error = files.Remove(folder.Whole(path)); error != kNoError) return error;
  }
  return kNoError;
}

int Apply(Files& files, const HistoryFolder& folder, const BidState& state) {
  BidState now;
  QString problem;
  int error = ReadBidState(files.GetDisk(), folder, state.project, now, problem);
  if (error == kNoError) error = RemoveOthers(files, folder, now, state);
  for (auto file = state.files.constBegin(); file != state.files.constEnd(); ++file) {
    if (error != kNoError) return error;
    if (!OfProject(state, file.key())) continue;
    const auto stands = now.files.constFind(file.key());
    if (stands != now.files.constEnd() && *stands == file.value()) continue;
    error = files.ReplaceFile(folder.Whole(file.key()), file.value());
    if (error == kNotConfirmed) error = kNoError;
  }
  return error;
}

int WriteIntent(Disk& disk, const HistoryFolder& folder, const VersionHead& head,
                const BidState& state) {
  for (const QString& level : {folder.Path(), folder.BringingBack()})
    MakeHistoryFolder(disk, level);
  return WriteHistoryFile(disk, folder.BringingBackState(state.project), VersionText(head, state));
}

}  // namespace

int BringBack(Files& files, const HistoryFolder& folder, const VersionHead& head,
              const BidState& state) {
  Disk& disk = files.GetDisk();
  const QString intent = folder.BringingBackState(state.project);
  BidState before;
  QString problem;
  int error = ReadBidState(disk, folder, state.project, before, problem);
  if (error != kNoError) return error;
  error = WriteIntent(disk, folder, head, state);
  if (error != kNoError) return error;
  error = Apply(files, folder, state);
  if (error != kNoError) {
    // Back to what stood: what could not be written once may fail again, and is then made good by
    // the next start.
    if (WriteIntent(disk, folder, head, before) != kNoError) return error;
    if (Apply(files, folder, before) != kNoError) return error;
  }
  disk.RemoveFile(intent);
  disk.SyncFolder(BareFolder(folder.BringingBack()));
  return error;
}

QStringList FinishBringingBack(Files& files, const HistoryFolder& folder) {
  Disk& disk = files.GetDisk();
  QStringList done;
  for (const QString& part : {folder.Path(), folder.BringingBack(), folder.Deleted()})
    files.Sweep(part);
  for (const QString& name : disk.Names(BareFolder(folder.BringingBack()))) {
    if (!name.endsWith(QLatin1String(kVersionEnding))) continue;
    const QString path = folder.BringingBack() + name;
    VersionHead head;
    BidState state;
    if (ReadVersion(disk, path, head, state) &&
        disk.IsFolder(BareFolder(folder.Whole(FolderOfBid(head.project))))) {
      if (Apply(files, folder, state) != kNoError) continue;
      done += head.project;
    }
    disk.RemoveFile(path);
  }
  return done;
}

}  // namespace tamo
