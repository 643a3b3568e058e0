#include "support/faultdisk.h"

#include <QDir>
#include <QFileInfo>

#include "common/failure.h"

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

void FaultDisk::Put(QSet<QString>& paths, const QString& path) {
  const std::lock_guard<std::mutex> lock(mutex_);
  paths.insert(Clean(path));
}

void FaultDisk::Take(QSet<QString>& paths, const QString& path) {
  const std::lock_guard<std::mutex> lock(mutex_);
  paths.remove(Clean(path));
}

bool FaultDisk::IsIn(const QSet<QString>& paths, const QString& path) const {
  const std::lock_guard<std::mutex> lock(mutex_);
  if (paths.isEmpty()) return false;
  const QString clean = Clean(path);
  for (const QString& one : paths) {
    if (clean == one || clean.startsWith(one + QLatin1Char('/'))) return true;
  }
  return false;
}

int FaultDisk::CannotRead(const QString& path) const {
  if (Hidden(path)) return Hidden(QFileInfo(Clean(path)).path()) ? kPathNotFound : kFileNotFound;
  return IsIn(unreadable_, path) ? kNoAccess : kNoError;
}

int FaultDisk::CannotWrite(const QString& path) const {
  if (Hidden(path)) return kPathNotFound;
  return IsIn(denied_, path) ? kNoAccess : kNoError;
}

int FaultDisk::Step() {
  ++steps_;
  const bool hit = failAt_ > 0 && (forGood_ ? steps_ >= failAt_ : steps_ == failAt_);
  return hit ? failWith_ : kNoError;
}

int FaultDisk::Read(const QString& path, QByteArray& bytes) {
  bytes.clear();
  if (const int error = CannotRead(path)) return error;
  return RealDisk::Read(path, bytes);
}

// Of what can't be read nothing is known, so that it is read anew.
FileStamp FaultDisk::Stamp(const QString& path) {
  return CannotRead(path) == kNoError ? RealDisk::Stamp(path) : FileStamp{};
}

int FaultDisk::OpenToRead(const QString& path, std::shared_ptr<FileReader>& reader) {
  if (const int error = CannotRead(path)) return error;
  return RealDisk::OpenToRead(path, reader);
}

int FaultDisk::OpenNew(const QString& path, int& handle) {
  if (const int error = CannotWrite(path)) return error;
  if (const int error = Step()) return error;
  return RealDisk::OpenNew(path, handle);
}

int FaultDisk::OpenExclusive(const QString& path, int& handle) {
  if (const int error = CannotWrite(path)) return error;
  if (full_ && !RealDisk::Exists(path)) return kDiskFull;
  if (const int error = Step()) return error;
  return RealDisk::OpenExclusive(path, handle);
}

int FaultDisk::OpenAtEnd(const QString& path, int& handle) {
  if (const int error = CannotWrite(path)) return error;
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
  if (quick) return kNoError;
  if (const int error = Step()) return error;
  return RealDisk::Sync(handle);
}

int FaultDisk::Close(int handle) {
  const int error = Step();
  const int closed = RealDisk::Close(handle);
  return error != kNoError ? error : closed;
}

int FaultDisk::Rename(const QString& from, const QString& to) {
  if (Hidden(from)) return CannotRead(from);
  if (const int error = CannotWrite(to)) return error;
  if (const int error = Step()) return error;
  return RealDisk::Rename(from, to);
}

int FaultDisk::RenameNew(const QString& from, const QString& to) {
  if (Hidden(from)) return CannotRead(from);
  if (const int error = CannotWrite(to)) return error;
  if (const int error = Step()) return error;
  return RealDisk::RenameNew(from, to);
}

int FaultDisk::Swap(const QString& one, const QString& other) {
  if (Hidden(one)) return CannotRead(one);
  if (const int error = CannotWrite(other)) return error;
  if (const int error = Step()) return error;
  return RealDisk::Swap(one, other);
}

int FaultDisk::SyncFolder(const QString& folder) {
  if (Hidden(folder)) return kPathNotFound;
  if (quick) return kNoError;
  if (const int error = Step()) return error;
  return RealDisk::SyncFolder(folder);
}

int FaultDisk::MakeFolder(const QString& path) {
  if (const int error = CannotWrite(path)) return error;
  if (full_ && !Exists(path)) return kDiskFull;
  if (const int error = Step()) return error;
  return RealDisk::MakeFolder(path);
}

int FaultDisk::RemoveFile(const QString& path) {
  if (Hidden(path)) return CannotRead(path);
  if (const int error = CannotWrite(path)) return error;
  if (const int error = Step()) return error;
  return RealDisk::RemoveFile(path);
}

int FaultDisk::RemoveFolder(const QString& path) {
  if (Hidden(path)) return CannotRead(path);
  if (const int error = CannotWrite(path)) return error;
  if (const int error = Step()) return error;
  return RealDisk::RemoveFolder(path);
}

bool FaultDisk::CanWrite(const QString& path) {
  return CannotWrite(path) == kNoError && RealDisk::CanWrite(path);
}

bool FaultDisk::Exists(const QString& path) {
  return !Hidden(path) && RealDisk::Exists(path);
}
bool FaultDisk::IsFolder(const QString& path) {
  return !Hidden(path) && RealDisk::IsFolder(path);
}
bool FaultDisk::IsLink(const QString& path) {
  return !Hidden(path) && RealDisk::IsLink(path);
}
qint64 FaultDisk::Size(const QString& path) {
  return Hidden(path) ? -1 : RealDisk::Size(path);
}

QStringList FaultDisk::Names(const QString& folder) {
  if (CannotRead(folder) != kNoError) return {};
  QStringList names = RealDisk::Names(folder);
  names.removeIf([&](const QString& name) { return Hidden(folder + QLatin1Char('/') + name); });
  return names;
}

}  // namespace tamo::test
