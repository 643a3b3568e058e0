#include "livedisk.h"

#include "common/failure.h"

namespace tamo::test {

void LiveDisk::Overwrite(const QString& path, const QByteArray& bytes) {
  OverwriteWithOldTime(path, bytes);
  stamps_[path].modified = Time();
}

void LiveDisk::Replace(const QString& path, const QByteArray& bytes) {
  stamps_[path].number = ++numbers_;
  Overwrite(path, bytes);
}

void LiveDisk::OverwriteWithOldTime(const QString& path, const QByteArray& bytes) {
  contents[path] = bytes;
  stamps_[path].changed = Time();
}

void LiveDisk::Drop(const QString& path) {
  contents.remove(path);
  stamps_.remove(path);
}

int LiveDisk::Read(const QString& path, QByteArray& bytes) {
  ++reads;
  return MemoryDisk::Read(path, bytes);
}

FileStamp LiveDisk::Stamp(const QString& path) {
  if (!contents.contains(path)) return {};
  FileStamp stamp = stamps_.value(path);
  stamp.size = contents.value(path).size();
  stamp.seen = now;
  return stamp;
}

int LiveDisk::OpenNew(const QString& path, int& handle) {
  open_ = path;
  handle = 1;
  Replace(path, {});
  return kNoError;
}

int LiveDisk::OpenExclusive(const QString& path, int& handle) {
  return contents.contains(path) ? kFileExists : OpenNew(path, handle);
}

int LiveDisk::Write(int, const QByteArray& bytes) {
  Overwrite(open_, contents.value(open_) + bytes);
  return kNoError;
}

int LiveDisk::Rename(const QString& from, const QString& to) {
  contents[to] = contents.take(from);
  stamps_[to] = stamps_.take(from);
  stamps_[to].changed = Time();
  return kNoError;
}

int LiveDisk::RemoveFile(const QString& path) {
  Drop(path);
  return kNoError;
}

}  // namespace tamo::test
