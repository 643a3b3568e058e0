#pragma once

#include "common/disk.h"
#include "history/bidstate.h"

namespace tamo {

// A former state of a bid as a disk that can only be read: the reports read it as they read the
// bid that stands. Nothing else is found on it. From any thread.
class StateDisk : public Disk {
 public:
  StateDisk(const HistoryFolder& folder, const BidState& state);

  int Read(const QString& path, QByteArray& bytes) override;
  FileStamp Stamp(const QString&) override { return {}; }
  int OpenToRead(const QString& path, std::shared_ptr<FileReader>& reader) override;
  int OpenNew(const QString& path, int& handle) override;
  int OpenExclusive(const QString& path, int& handle) override;
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
  bool Exists(const QString& path) override;
  bool IsFolder(const QString& path) override;
  bool IsLink(const QString&) override { return false; }
  bool CanWrite(const QString&) override { return false; }
  qint64 Size(const QString& path) override;
  QStringList Names(const QString& folder) override;

 private:
  QHash<QString, QByteArray> files_;  // by whole paths
  QHash<QString, QStringList> folders_;
};

}  // namespace tamo
