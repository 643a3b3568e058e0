#pragma once

#include <QByteArray>
#include <QHash>
#include <QString>

#include "common/disk.h"
#include "history/historyfolder.h"

namespace tamo {

// Adds former states to a journal file of its own, one for each program and day, so that programs
// that share a folder never write into one file. The first state of a file is written whole, the
// next ones as what changed since the last one; whole again when that would take more room.
class JournalWriter {
 public:
  explicit JournalWriter(Disk& disk) : disk_(disk) {}
  ~JournalWriter() { Close(); }
  JournalWriter(const JournalWriter&) = delete;
  JournalWriter& operator=(const JournalWriter&) = delete;

  // What stood in `path` (below the data folder) at `when` and was replaced then. An error number
  // of the disk; the journal file is whole then, and the state is not in it.
  int Add(const HistoryFolder& folder, const QByteArray& when, const QString& path,
          const QByteArray& text);
  int AddNew(const HistoryFolder& folder, const QByteArray& when, const QString& path);
  void Close();

  // The bytes that were written since the journal file was begun.
  qint64 Size() const { return size_; }
  const QString& FilePath() const { return filePath_; }

 private:
  struct Chain {
    QByteArray text;    // of the last entry
    qint64 deltas = 0;  // bytes since the last whole one
  };

  int Open(const HistoryFolder& folder, const QByteArray& when);
  int Write(const QByteArray& bytes);
  void Remember(const QString& path, Chain chain);

  Disk& disk_;
  QString filePath_;
  QByteArray day_;
  int handle_ = -1;
  qint64 size_ = 0;
  QHash<QString, Chain> chains_;
  qint64 remembered_ = 0;  // bytes of their texts
};

}  // namespace tamo
