#pragma once

#include <QSet>
#include <QStringList>

#include "common/disk.h"

namespace tamo::test {

// The real file system, on which a test can deny a file or folder, fill the disk, or make the Nth
// writing step fail.
class FaultDisk : public RealDisk {
 public:
  void Deny(const QString& path) { denied_.insert(Clean(path)); }
  void Allow(const QString& path) { denied_.remove(Clean(path)); }
  void SetFull(bool full) { full_ = full; }

  // Writing steps are counted from 1 (open, write, sync, close, rename, folder sync, make folder,
  // remove); the one with number `step` fails with `error`. 0 switches it off. `forGood`: and so do
  // all after it.
  void FailStep(int step, int error, bool forGood = false);
  int StepsTaken() const { return steps_; }
  void ResetSteps() { steps_ = 0; }

  int OpenNew(const QString& path, int& handle) override;
  int OpenAtEnd(const QString& path, int& handle) override;
  int Write(int handle, const QByteArray& bytes) override;
  int Truncate(int handle, qint64 size) override;
  int Sync(int handle) override;
  int Close(int handle) override;
  int Rename(const QString& from, const QString& to) override;
  int SyncFolder(const QString& folder) override;
  int MakeFolder(const QString& path) override;
  int RemoveFile(const QString& path) override;
  int RemoveFolder(const QString& path) override;
  bool CanWrite(const QString& path) override;

 private:
  static QString Clean(const QString& path);
  bool Denied(const QString& path) const;
  int Step();

  QSet<QString> denied_;
  bool full_ = false;
  int failAt_ = 0;
  int failWith_ = 0;
  bool forGood_ = false;
  int steps_ = 0;
};

}  // namespace tamo::test
