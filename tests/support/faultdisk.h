#pragma once

#include <QSet>
#include <QStringList>
#include <mutex>

#include "common/disk.h"

namespace tamo::test {

// The real file system, on which a test can deny a file or folder, take it away, fill the disk, or
// make the Nth writing step fail. A path stands for itself and, when it is a folder, for all in it.
class FaultDisk : public RealDisk {
 public:
  // Every write fails with access denied.
  void Deny(const QString& path) { Put(denied_, path); }
  void Allow(const QString& path) { Take(denied_, path); }
  // Every read that is begun fails with access denied; a folder tells no names.
  void DenyReading(const QString& path) { Put(unreadable_, path); }
  void AllowReading(const QString& path) { Take(unreadable_, path); }
  // It is gone, as a drive that went away: nothing is found there (53, or 76 below it), and nothing
  // can be made there (76). What it holds is untouched and there again afterwards.
  void Hide(const QString& path) { Put(hidden_, path); }
  void Unhide(const QString& path) { Take(hidden_, path); }
  void SetFull(bool full) { full_ = full; }
  // Nothing waits for the device (and no sync counts as a step): the many saves of a test need not
  // outlive a power cut.
  bool quick = false;

  // Writing steps are counted from 1 (open, write, sync, close, rename, folder sync, make folder,
  // remove); the one with number `step` fails with `error`. 0 switches it off. `forGood`: and so do
  // all after it.
  void FailStep(int step, int error, bool forGood = false);
  int StepsTaken() const { return steps_; }
  void ResetSteps() { steps_ = 0; }

  int Read(const QString& path, QByteArray& bytes) override;
  FileStamp Stamp(const QString& path) override;
  int ReadStamped(const QString& path, QByteArray& bytes, FileStamp& stamp) override {
    return Disk::ReadStamped(path, bytes, stamp);
  }
  int OpenToRead(const QString& path, std::shared_ptr<FileReader>& reader) override;
  int OpenNew(const QString& path, int& handle) override;
  int OpenExclusive(const QString& path, int& handle) override;
  int OpenAtEnd(const QString& path, int& handle) override;
  int Write(int handle, const QByteArray& bytes) override;
  int Truncate(int handle, qint64 size) override;
  int Sync(int handle) override;
  int Close(int handle) override;
  int Rename(const QString& from, const QString& to) override;
  int RenameNew(const QString& from, const QString& to) override;
  int Swap(const QString& one, const QString& other) override;
  int SyncFolder(const QString& folder) override;
  int MakeFolder(const QString& path) override;
  int RemoveFile(const QString& path) override;
  int RemoveFolder(const QString& path) override;
  bool Exists(const QString& path) override;
  bool IsFolder(const QString& path) override;
  bool IsLink(const QString& path) override;
  bool CanWrite(const QString& path) override;
  qint64 Size(const QString& path) override;
  QStringList Names(const QString& folder) override;

 private:
  static QString Clean(const QString& path);
  // Faults may be set while other threads read.
  void Put(QSet<QString>& paths, const QString& path);
  void Take(QSet<QString>& paths, const QString& path);
  // The file itself, or anything above it is among `paths`.
  bool IsIn(const QSet<QString>& paths, const QString& path) const;
  bool Hidden(const QString& path) const { return IsIn(hidden_, path); }
  int CannotRead(const QString& path) const;   // why, 0 when it can
  int CannotWrite(const QString& path) const;  // likewise
  int Step();

  mutable std::mutex mutex_;
  QSet<QString> denied_;
  QSet<QString> unreadable_;
  QSet<QString> hidden_;
  bool full_ = false;
  int failAt_ = 0;
  int failWith_ = 0;
  bool forGood_ = false;
  int steps_ = 0;
};

}  // namespace tamo::test
