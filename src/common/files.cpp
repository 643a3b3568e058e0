#include "common/files.h"

#include <algorithm>

#include "common/failure.h"
#include "common/paths.h"
#include "common/replacement.h"
#include "common/textlines.h"

namespace tamo {

namespace {

QString UnsureText(const QString& path) {
  return QStringLiteral(
             "Saved, but not surely: %1 holds your entry, but the device did not confirm it. A "
             "power cut could bring back the old state; your entry is kept here, too.")
      .arg(path);
}

}  // namespace

QString ReasonText(int number) {
  switch (number) {
    case kFileNotFound:
    case kPathNotFound:
      return QStringLiteral("its folder does not exist");
    case kNoAccess:
      return QStringLiteral("there is no right to write it");
    case kDiskFull:
      return QStringLiteral("the disk is full");
    case kNotConfirmed:
      return QStringLiteral("the device did not confirm it");
    default:
      return QStringLiteral("the device reports a failure");
  }
}

QString Files::Resolved(const QString& path) {
  if (disk_.Exists(path)) return path;
  const QString folder = FolderOf(path);
  const QString name = FileNameOf(path);
  if (folder.isEmpty() || name.isEmpty()) return path;
  for (const QString& other : disk_.Names(folder)) {
    if (other.compare(name, Qt::CaseInsensitive) == 0) return folder + PlatformSeparator() + other;
  }
  return path;
}

Files::Pending* Files::FindPending(const QString& path) {
  for (Pending& pending : pending_) {
    if (pending.path.compare(path, Qt::CaseInsensitive) == 0) return &pending;
  }
  return nullptr;
}

Files::Pending* Files::FindPendingText(const QString& path) {
  Pending* known = FindPending(path);
  return known != nullptr && !known->save ? known : nullptr;
}

void Files::KeepTrying(const QString& path, int reason, std::function<int()> save) {
  if (Pending* known = FindPending(path)) {
    known->reason = reason;
    known->save = std::move(save);
  } else {
    pending_.push_back({path, {}, reason, std::move(save)});
  }
  if (onPendingChanged) onPendingChanged();
}

void Files::StopTrying(const QString& path) {
  const auto before = pending_.size();
  std::erase_if(pending_, [&](const Pending& pending) {
    return pending.path.compare(path, Qt::CaseInsensitive) == 0;
  });
  if (pending_.size() != before && onPendingChanged) onPendingChanged();
}

int Files::ReadText(const QString& path, QString& text) {
  text.clear();
  if (!pending_.empty()) {
    if (const Pending* pending = FindPendingText(path)) {
      text = pending->text;
      return kNoError;
    }
  }
  const int error = ReadStored(path, text);
  if (error != kFileNotFound) return error;
  const QString other = Resolved(path);
  return other == path ? error : ReadStored(other, text);
}

// The stamp is taken before the file is read, so it is never newer than the text.
int Files::ReadStored(const QString& path, QString& text) {
  const FileStamp stamp = disk_.Stamp(path);
  if (memory_.Find(path, stamp, text)) return kNoError;
  QByteArray bytes;
  const int error = disk_.Read(path, bytes);
  if (error != kNoError) return error;
  text = DecodedText(bytes);
  memory_.Keep(path, stamp, text);
  return kNoError;
}

int Files::ReadLines(const QString& path, QStringList& lines) {
  QString text;
  const int error = ReadText(path, text);
  lines = WholeLines(text);
  return error;
}

int Files::ReadFields(const QString& path, QStringList& fields) {
  QString text;
  const int error = ReadText(path, text);
  fields = DelimitedFields(text);
  return error;
}

int Files::SaveLines(const QString& path, const QStringList& lines) {
  return SaveText(path, JoinedLines(lines));
}

int Files::SaveText(const QString& path, const QString& text) {
  if (mayWrite && !mayWrite(path)) return kNoAccess;
  if (!pending_.empty()) RetryPending(path);
  const int error = ReplaceInItsFolder(path, text.toUtf8());
  Pending* known = FindPending(path);
  if (error != kNoError) {
    if (known != nullptr) {
      known->text = text;
      known->reason = error;
    } else {
      pending_.push_back({path, text, error, {}});
    }
    if (onPendingChanged) onPendingChanged();
  } else if (known != nullptr) {
    pending_.erase(pending_.begin() + (known - pending_.data()));
    if (onPendingChanged) onPendingChanged();
  }
  return error;
}

int Files::ReplaceFile(const QString& path, const QByteArray& bytes) {
  if (mayWrite && !mayWrite(path)) return kNoAccess;
  return ReplaceInItsFolder(path, bytes);
}

// The old file is opened before it loses its name; it is read later, and not here.
int Files::ReplaceWitnessed(const QString& path, const QByteArray& bytes) {
  if (witness == nullptr) return Replace(path, bytes);
  QString target = path;
  std::shared_ptr<FileReader> former;
  if (disk_.OpenToRead(target, former) != kNoError) {
    target = Resolved(path);
    if (target != path) disk_.OpenToRead(target, former);
  }
  int error = Replace(target, bytes);
  while (error == kDiskFull && witness->MakeRoom()) error = Replace(target, bytes);
  if (error == kNoError || error == kNotConfirmed) witness->Replaced(target, std::move(former));
  return error;
}

int Files::Replace(const QString& path, const QByteArray& bytes) {
  const QString target = Resolved(path);
  memory_.Forget(target);
  if (disk_.Exists(target) && !disk_.CanWrite(target)) return kNoAccess;
  if (disk_.IsFolder(target)) return kNoAccess;
  Replacement fresh(disk_, target);
  const int error = fresh.Begin();
  return error != kNoError ? error : fresh.Finish(disk_.Write(fresh.Handle(), bytes));
}

void Files::RetryPending(const QString& except) {
  const auto before = pending_.size();
  std::erase_if(pending_, [&](Pending& pending) {
    if (pending.path.compare(except, Qt::CaseInsensitive) == 0) return false;
    if (mayWrite && !mayWrite(pending.path)) return false;
    pending.reason =
        pending.save ? pending.save() : ReplaceInItsFolder(pending.path, pending.text.toUtf8());
    return pending.reason == kNoError;
  });
  if (pending_.size() != before && onPendingChanged) onPendingChanged();
}

bool Files::TryAgain() {
  RetryPending({});
  return pending_.empty();
}

QString Files::Notice() const {
  if (pending_.empty()) return {};
  const Pending& last = pending_.back();
  QString text = last.reason == kNotConfirmed ? UnsureText(last.path)
                                              : QStringLiteral(
                                                    "Not saved: %1, because %2. The file on disk "
                                                    "is unchanged; your entry is kept here.")
                                                    .arg(last.path, ReasonText(last.reason));
  if (pending_.size() > 1)
    text += QStringLiteral(" (%1 files wait to be saved.)").arg(pending_.size());
  return text + QStringLiteral(" Click here to try again.");
}

bool Files::Exists(const QString& path) {
  return FindPendingText(path) != nullptr || disk_.Exists(Resolved(path));
}

int Files::Remove(const QString& path) {
  if (mayWrite && !mayWrite(path)) return kNoAccess;
  const Pending* known = FindPending(path);
  if (known != nullptr) {
    pending_.erase(pending_.begin() + (known - pending_.data()));
    if (onPendingChanged) onPendingChanged();
  }
  const QString target = Resolved(path);
  std::shared_ptr<FileReader> former;
  if (witness != nullptr) disk_.OpenToRead(target, former);
  const int error = disk_.RemoveFile(target);
  if (error == kNoError && former != nullptr) witness->Replaced(target, std::move(former));
  return error;
}

int Files::MakeFolder(const QString& path) {
  if (mayWrite && !mayWrite(path)) return kNoAccess;
  const QString bare = BareFolder(path);
  const int error = disk_.MakeFolder(bare);
  if (error == kNoError) MakeLasting(bare);
  if (error != kNoError && !missingFolders_.contains(bare) && !disk_.Exists(bare)) {
    missingFolders_ += bare;
  }
  return error;
}

// A new folder stands after a power cut only when the folder above it is on the device.
void Files::MakeLasting(const QString& folder) {
  const auto sync = [this, above = FolderOf(folder)] {
    return disk_.SyncFolder(above) == kNoError ? kNoError : kNotConfirmed;
  };
  if (sync() != kNoError) KeepTrying(folder, kNotConfirmed, sync);
}

void Files::MakeFolders(const QString& path) {
  for (const QString& level : FolderLevels(path)) MakeFolder(level);
  if (!EndsInSeparator(path)) MakeFolder(path);
}

// A folder that could not be made when it was asked for is made now; why it still can't be is the
// reason of the failed save.
int Files::ReplaceInItsFolder(const QString& path, const QByteArray& bytes) {
  const int error = ReplaceWitnessed(path, bytes);
  if (error != kPathNotFound || missingFolders_.isEmpty()) return error;
  const int folders = MakeMissingFolders();
  const int again = ReplaceWitnessed(path, bytes);
  return again == kPathNotFound && folders != kNoError ? folders : again;
}

// The folders that could not be made when they were asked for, outermost first.
int Files::MakeMissingFolders() {
  int error = kNoError;
  missingFolders_.removeIf([&](const QString& folder) {
    if (disk_.Exists(folder)) return true;
    const int made = disk_.MakeFolder(folder);
    if (made == kNoError) disk_.SyncFolder(FolderOf(folder));
    if (made != kNoError && error == kNoError) error = made;
    return made == kNoError;
  });
  return error;
}

void Files::Sweep(const QString& folder) {
  const QString bare = BareFolder(folder);
  for (const QString& name : disk_.Names(bare)) {
    if (!name.endsWith(QLatin1String(kUnfinishedEnding))) continue;
    const QString path = InFolder(bare, name);
    if (LeftByTheDead(name, disk_.SecondsSinceWritten(path))) disk_.RemoveFile(path);
  }
}

}  // namespace tamo
