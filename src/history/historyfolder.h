#pragma once

#include <QString>
#include <QStringList>

#include "common/disk.h"
#include "records/datafolder.h"

namespace tamo {

// Where the journal and the versions of a data folder lie. Paths are texts; nothing is looked up.
class HistoryFolder {
 public:
  HistoryFolder(const DataFolder& data);

  const QString& Data() const { return data_; }  // the data folder, with its separator
  const QString& Path() const { return path_; }  // of History, with its separator
  QString Journal(const QString& name) const { return path_ + name; }
  QString Versions() const;  // a folder for each project
  QString VersionsOf(const QString& project) const;
  QString Deleted() const;  // the last states of deleted projects
  QString DeletedState(const QString& project) const;
  QString DeletedFiles(const QString& project) const;  // its plans
  QString BringingBack() const;                        // versions that are just being brought back
  QString BringingBackState(const QString& project) const;

  // `path` below the data folder, with slashes; "" for what lies outside, and for the history
  // itself.
  QString Relative(const QString& path) const;
  // The other way round.
  QString Whole(const QString& relative) const;

 private:
  QString Named(const char* folder) const;

  QString data_;
  QString separator_;
  QString path_;
};

inline constexpr char kJournalEnding[] = ".journal";
inline constexpr char kVersionEnding[] = ".version";

// The files of the journal, oldest first.
QStringList JournalFiles(Disk& disk, const HistoryFolder& folder);

// Replaces a file of the history in one step. An error number of the disk.
int WriteHistoryFile(Disk& disk, const QString& path, const QByteArray& bytes);
// One level, if it is not there.
void MakeHistoryFolder(Disk& disk, const QString& path);

}  // namespace tamo
