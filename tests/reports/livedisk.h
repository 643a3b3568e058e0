#pragma once

#include <QHash>

#include "randomproject.h"

namespace tamo::test {

// A disk in memory whose clock ticks coarsely: what happens within one tick has one time. It is
// changed from inside, by saves, and from outside.
class LiveDisk : public MemoryDisk {
 public:
  explicit LiveDisk(qint64 tick) : tick_(tick) {}

  qint64 now = 1'000'000'000'000'000;  // nanoseconds
  int reads = 0;

  // From outside, as other programs do it: into the file itself, by a new file in its place, or
  // into the file with its old time restored.
  void Overwrite(const QString& path, const QByteArray& bytes);
  void Replace(const QString& path, const QByteArray& bytes);
  void OverwriteWithOldTime(const QString& path, const QByteArray& bytes);
  void Drop(const QString& path);

  int Read(const QString& path, QByteArray& bytes) override;
  FileStamp Stamp(const QString& path) override;
  int OpenNew(const QString& path, int& handle) override;
  int OpenExclusive(const QString& path, int& handle) override;
  int MakeFolder(const QString&) override { return 0; }
  int Write(int handle, const QByteArray& bytes) override;
  int Sync(int) override { return 0; }
  int Close(int) override { return 0; }
  int Rename(const QString& from, const QString& to) override;
  int RenameNew(const QString& from, const QString& to) override {
    return Disk::RenameNew(from, to);
  }
  int Swap(const QString& one, const QString& other) override { return Disk::Swap(one, other); }
  void TakeOver(int, const QString&) override {}
  QString FollowLink(const QString& path) override { return path; }
  int SyncFolder(const QString&) override { return 0; }
  int RemoveFile(const QString& path) override;
  bool IsFolder(const QString&) override { return false; }
  bool IsLink(const QString&) override { return false; }
  bool CanWrite(const QString&) override { return true; }

 private:
  qint64 Time() const { return now / tick_ * tick_; }

  qint64 tick_;
  quint64 numbers_ = 0;
  QString open_;
  QHash<QString, FileStamp> stamps_;
};

}  // namespace tamo::test
