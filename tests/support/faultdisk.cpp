#include "support/faultdisk.h"

#include <QDir>

#include "common/failure.h"
#include "common/files.h"

namespace tamo::test {

QString FaultDisk::Clean(const QString& path) {
  return QDir::cleanPath(path);
}

void FaultDisk::FailStep(int step, int error, bool forGood) {
  failAt_ = step;
  failWith_ = error;
  forGood_ = forGood;
  steps_ = 0;
}

// The file itself, its half-made save, or anything above it may be denied.
bool FaultDisk::Denied(const QString& path) const {
  QString clean = Clean(path);
  if (clean.endsWith(QLatin1String(kUnfinishedEnding)))
    clean.chop(static_cast<int>(sizeof kUnfinishedEnding) - 1);
  for (const QString& denied : denied_) {
    if (clean == denied || clean.startsWith(denied + QLatin1Char('/'))) return true;
  }
  return false;
}

int FaultDisk::Step() {
  ++steps_;
  const bool hit = failAt_ > 0 && (forGood_ ? steps_ >= failAt_ : steps_ == failAt_);
  return hit ? failWith_ : kNoError;
}

int FaultDisk::OpenNew(const QString& path, int& handle) {
  if (Denied(path)) return kNoAccess;
  if (const int error = Step()) return error;
  return RealDisk::OpenNew(path, handle);
}

int FaultDisk::OpenAtEnd(const QString& path, int& handle) {
  if (Denied(path)) return kNoAccess;
  if (const int error = Step()) return error;
  return RealDisk::OpenAtEnd(path, handle);
}

int FaultDisk::Write(int handle, const QByteArray& bytes) {
  if (const int error = Step()) {
    RealDisk::Write(handle, bytes.left(bytes.size() / 2));
    return error;
  }
  if (full_) return kDiskFull;
  return RealDisk::Write(handle, bytes);
}

int FaultDisk::Truncate(int handle, qint64 size) {
  if (const int error = Step()) return error;
  return RealDisk::Truncate(handle, size);
}

int FaultDisk::Sync(int handle) {
  if (const int error = Step()) return error;
  return RealDisk::Sync(handle);
}

int FaultDisk::Close(int handle) {
  const int error = Step();
  const int closed = RealDisk::Close(handle);
  return error != kNoError ? error : closed;
}

int FaultDisk::Rename(const QString& from, const QString& to) {
  if (Denied(to)) return kNoAccess;
  if (const int error = Step()) return error;
  return RealDisk::Rename(from, to);
}

int FaultDisk::SyncFolder(const QString& folder) {
  if (const int error = Step()) return error;
  return RealDisk::SyncFolder(folder);
}

int FaultDisk::MakeFolder(const QString& path) {
  if (Denied(path)) return kNoAccess;
  if (full_ && !Exists(path)) return kDiskFull;
  if (const int error = Step()) return error;
  return RealDisk::MakeFolder(path);
}

int FaultDisk::RemoveFile(const QString& path) {
  if (Denied(path)) return kNoAccess;
  if (const int error = Step()) return error;
  return RealDisk::RemoveFile(path);
}

int FaultDisk::RemoveFolder(const QString& path) {
  if (Denied(path)) return kNoAccess;
  if (const int error = Step()) return error;
  return RealDisk::RemoveFolder(path);
}

bool FaultDisk::CanWrite(const QString& path) {
  return !Denied(path) && RealDisk::CanWrite(path);
}

}  // namespace tamo::test
