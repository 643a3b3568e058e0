#include "history/statedisk.h"

#include "common/failure.h"
#include "common/paths.h"

namespace tamo {

StateDisk::StateDisk(const HistoryFolder& folder, const BidState& state) {
  for (auto file = state.files.constBegin(); file != state.files.constEnd(); ++file) {
    QString path = folder.Whole(file.key());
    files_.insert(path, file.value());
    for (; path.size() > folder.Data().size(); path = FolderOf(path)) {
      QStringList& names = folders_[FolderOf(path)];
      if (names.contains(FileNameOf(path))) break;
      names += FileNameOf(path);
    }
  }
}

int StateDisk::Read(const QString& path, QByteArray& bytes) {
  const auto found = files_.constFind(NativePath(path));
  if (found == files_.constEnd()) return kFileNotFound;
  bytes = *found;
  return kNoError;
}

int StateDisk::OpenToRead(const QString&, std::shared_ptr<FileReader>&) {
  return kFileNotFound;
}
int StateDisk::OpenNew(const QString&, int&) {
  return kNoAccess;
}
int StateDisk::OpenExclusive(const QString&, int&) {
  return kNoAccess;
}
int StateDisk::OpenAtEnd(const QString&, int&) {
  return kNoAccess;
}
int StateDisk::Write(int, const QByteArray&) {
  return kNoAccess;
}
int StateDisk::Truncate(int, qint64) {
  return kNoAccess;
}
int StateDisk::Sync(int) {
  return kNoAccess;
}
int StateDisk::Close(int) {
  return kNoAccess;
}
int StateDisk::Rename(const QString&, const QString&) {
  return kNoAccess;
}
int StateDisk::SyncFolder(const QString&) {
  return kNoAccess;
}
int StateDisk::MakeFolder(const QString&) {
  return kNoAccess;
}
int StateDisk::RemoveFile(const QString&) {
  return kNoAccess;
}
int StateDisk::RemoveFolder(const QString&) {
  return kNoAccess;
}

bool StateDisk::Exists(const QString& path) {
  return files_.contains(NativePath(path)) || IsFolder(path);
}

bool StateDisk::IsFolder(const QString& path) {
  return folders_.contains(BareFolder(NativePath(path)));
}

qint64 StateDisk::Size(const QString& path) {
  const auto found = files_.constFind(NativePath(path));
  return found == files_.constEnd() ? -1 : found->size();
}

QStringList StateDisk::Names(const QString& folder) {
  return folders_.value(BareFolder(NativePath(folder)));
}

}  // namespace tamo
