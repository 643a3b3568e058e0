#pragma once

#include <QHash>
#include <QMap>
#include <QSet>
#include <QStringList>

#include "common/disk.h"

namespace tamo::test {

// A file system in memory, for tests of a hundred thousand keys. Paths use /; a folder exists when
// it was made, or when a file was put below it. Nothing is denied and nothing fails but what is
// missing.
class RamDisk : public Disk {
 public:
  // As if another program had left it there; folders are made as needed.
  void Put(const QString& path, const QStringList& lines);
  QStringList Lines(const QString& path) const;  // none for a missing file
  const QMap<QString, QByteArray>& AllFiles() const { return files_; }
  // The files that were written or removed since last asked, in that order.
  QStringList TakeTouched();

  int Read(const QString& path, QByteArray& bytes) override;
  FileStamp Stamp(const QString&) override { return {}; }  // nothing is known: all is read anew
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
  bool IsLink(const QString& path) override;
  bool CanWrite(const QString& path) override;
  qint64 Size(const QString& path) override;
  QStringList Names(const QString& folder) override;

 private:
  int Missing(const QString& path) const;  // 53, or 76 when the folder is missing, too
  void MakeFoldersAbove(const QString& path);

  QMap<QString, QByteArray> files_;
  QSet<QString> folders_;
  QHash<int, QString> open_;
  QStringList touched_;
  int nextHandle_ = 1;
};

}  // namespace tamo::test
