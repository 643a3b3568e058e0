#pragma once

#include <QHash>
#include <QSet>
#include <QString>
#include <vector>

#include "common/disk.h"

namespace tamo {

// A read that failed and has not been made good since.
struct ReadFailure {
  QString path;
  int number = 0;  // never 53 or 76: a file that was never there is no failure
};

// What this run knows of the files that it read, so that one that can't be read now, or that is
// gone, is never taken for an empty one. Paths are the same in any case. One thread.
class ReadBook {
 public:
  // `path` was read: `text` is what the program now holds for its content.
  void Read(const QString& path, const QString& text);
  // How the file looked from outside when the program last read or stored it.
  void Saw(const QString& path, const FileStamp& stamp) { stamps_.insert(Key(path), stamp); }
  // A read found that it is not there, and never was.
  void NotThere(const QString& path) { absent_.insert(Key(path)); }
  // The program's own text was stored, alone or, `merged`, together with what others had entered.
  void Stored(const QString& path, const QString& text, bool merged);
  // The file has to be there although it was not read: a list names it. The same for a folder.
  void Expect(const QString& path) { seen_.insert(Key(path)); }
  void ExpectFolder(const QString& folder) { folders_.insert(Key(folder)); }
  void Failed(const QString& path, int number);
  void Mend(const QString& path);  // it can be read again, or was never there
  // The program removed it, or the estimator begins it anew: as if it had never been read.
  void Forget(const QString& path);
  void ForgetFolder(const QString& folder);  // itself and all below it

  bool Seen(const QString& path) const { return seen_.contains(Key(path)); }
  bool SeenFolder(const QString& folder) const { return folders_.contains(Key(folder)); }
  bool WasAbsent(const QString& path) const { return absent_.contains(Key(path)); }
  // What the program read there was once not what it had last read or stored.
  bool HadAnothersText(const QString& path) const { return anothers_.contains(Key(path)); }
  // Another program may have stored the file since: it looks different, or its looks say nothing.
  // Never for a file of which the program knows nothing.
  bool MayBeChanged(const QString& path, const FileStamp& now) const;
  // `text` is what the program last read there or stored.
  bool IsLastText(const QString& path, const QString& text) const;
  // What the program has of the file is not what it holds.
  void SetApart(const QString& path) { apart_.insert(Key(path)); }
  // The file may hold more than the program's own text: a save must look and merge. It holds from
  // a failed read, or a merged save, to the next time that the program reads the file.
  bool Apart(const QString& path) const { return apart_.contains(Key(path)); }
  qsizetype CountApart() const { return apart_.size(); }
  // Whether LastText is there.
  bool HasLastText(const QString& path) const;
  // What the program last read there or stored, "" when it knows nothing.
  QString LastText(const QString& path) const;
  bool IsFailing(const QString& path) const;
  const std::vector<ReadFailure>& Failures() const { return failures_; }

  static constexpr size_t kMostFailures = 50;         // more are not named
  static constexpr qsizetype kMostText = 32'000'000;  // characters of all texts; older ones go

 private:
  static QString Key(const QString& path);
  void Keep(const QString& key, const QString& text);

  QSet<QString> seen_;
  QSet<QString> folders_;  // in which a file was read
  QSet<QString> apart_;
  QSet<QString> absent_;
  QSet<QString> anothers_;
  QHash<QString, FileStamp> stamps_;
  QHash<QString, size_t> marks_;  // of each last text, when it itself has gone
  // Two generations: when the younger one is full the older one is dropped.
  QHash<QString, QString> young_;
  QHash<QString, QString> old_;
  qsizetype characters_ = 0;  // of the younger one
  std::vector<ReadFailure> failures_;
};

}  // namespace tamo
