#include "common/replacement.h"

#include <atomic>

#include "common/failure.h"
#include "common/paths.h"
#include "common/programname.h"

namespace tamo {
namespace {

// Nobody saves for a day.
constexpr qint64 kLongestSave = 86400;

// Unique in this run; it tells which program is at work.
QString UnfinishedName() {
  static std::atomic<int> count = 0;
  return QStringLiteral("%1.%2%3")
      .arg(ThisProgram().Text())
      .arg(++count)
      .arg(QLatin1String(kUnfinishedEnding));
}

}  // namespace

Replacement::Replacement(Disk& disk, const QString& path)
    : disk_(disk),
      path_(path),
      target_(disk.FollowLink(path)),
      name_(InFolder(FolderOf(target_), UnfinishedName())) {}

int Replacement::Begin() {
  if (disk_.IsLink(target_)) return kFileOther;  // links in a circle
  if (target_ != path_) SweepUnfinished(disk_, FolderOf(target_));
  const int error = disk_.OpenNew(name_, handle_);
  return error == kFileNotFound ? kPathNotFound : error;
}

int Replacement::Ready(int error) {
  if (error == kNoError) disk_.TakeOver(handle_, target_);
  if (error == kNoError) error = disk_.Sync(handle_);
  const int closing = disk_.Close(handle_);
  return error == kNoError ? closing : error;
}

int Replacement::Done(int error) {
  if (error != kNoError) {
    disk_.RemoveFile(name_);
    return error;
  }
  return disk_.SyncFolder(FolderOf(target_)) == kNoError ? kNoError : kNotConfirmed;
}

int Replacement::Finish(int error) {
  error = Ready(error);
  return Done(error == kNoError ? disk_.Rename(name_, target_) : error);
}

int Replacement::FinishNew(int error) {
  error = Ready(error);
  if (error != kNoError) return Done(error);
  error = disk_.RenameNew(name_, target_);
  return Done(error == kNotOffered ? disk_.Rename(name_, target_) : error);
}

// Whoever swapped in between finds our file under its own name, as we find theirs.
int Replacement::FinishSwapped(int error, QByteArray& displaced) {
  displaced = QByteArray();
  error = Ready(error);
  if (error != kNoError) return Done(error);
  error = disk_.Swap(name_, target_);
  if (error == kNotOffered || error == kFileNotFound) return Done(disk_.Rename(name_, target_));
  if (error != kNoError) return Done(error);
  error = disk_.Read(name_, displaced);
  if (error != kNoError) {
    disk_.Swap(name_, target_);
    return Done(error);
  }
  if (displaced.isNull()) displaced = QByteArray("");
  error = Done(kNoError);
  disk_.RemoveFile(name_);
  return error;
}

bool LeftByTheDead(const QString& name, qint64 age) {
  if (!name.endsWith(QLatin1String(kUnfinishedEnding))) return false;
  ProgramName program;
  if (!ReadProgramName(name, program)) return true;  // as older programs left them
  if (!program.OfThisMachine()) return age > kLongestSave;
  return !program.Lives();
}

void SweepUnfinished(Disk& disk, const QString& folder) {
  for (const QString& name : disk.Names(folder)) {
    if (!name.endsWith(QLatin1String(kUnfinishedEnding))) continue;
    const QString path = InFolder(folder, name);
    if (LeftByTheDead(name, disk.SecondsSinceWritten(path))) disk.RemoveFile(path);
  }
}

}  // namespace tamo
