#include "history/historyfolder.h"

#include "common/failure.h"
#include "common/paths.h"
#include "common/replacement.h"

namespace tamo {

HistoryFolder::HistoryFolder(const DataFolder& data)
    : data_(NativePath(data.Path())),
      separator_(PlatformSeparator()),
      path_(data_ + QStringLiteral("History") + separator_) {}

QString HistoryFolder::Named(const char* folder) const {
  return path_ + QLatin1String(folder) + separator_;
}

QString HistoryFolder::Versions() const {
  return Named("Versions");
}

QString HistoryFolder::VersionsOf(const QString& project) const {
  return Versions() + project + separator_;
}

QString HistoryFolder::Deleted() const {
  return Named("Deleted");
}

QString HistoryFolder::DeletedState(const QString& project) const {
  return Deleted() + project + QLatin1String(kVersionEnding);
}

QString HistoryFolder::DeletedFiles(const QString& project) const {
  return Deleted() + project + separator_;
}

QString HistoryFolder::BringingBack() const {
  return Named("BringingBack");
}

QString HistoryFolder::BringingBackState(const QString& project) const {
  return BringingBack() + project + QLatin1String(kVersionEnding);
}

QString HistoryFolder::Relative(const QString& path) const {
  QString native = NativePath(path);
  if (data_.isEmpty() || !native.startsWith(data_) || native.startsWith(path_)) return {};
  native.remove(0, data_.size());
  return native.replace(separator_, QLatin1String("/"));
}

QString HistoryFolder::Whole(const QString& relative) const {
  return data_ + NativePath(relative);
}

QStringList JournalFiles(Disk& disk, const HistoryFolder& folder) {
  QStringList names = disk.Names(BareFolder(folder.Path()));
  names.removeIf([](const QString& name) { return !name.endsWith(QLatin1String(kJournalEnding)); });
  names.sort();
  return names;
}

int WriteHistoryFile(Disk& disk, const QString& path, const QByteArray& bytes) {
  Replacement fresh(disk, path);
  int error = fresh.Begin();
  if (error == kNoError) error = fresh.Finish(disk.Write(fresh.Handle(), bytes));
  return error == kNotConfirmed ? kNoError : error;
}

void MakeHistoryFolder(Disk& disk, const QString& path) {
  const QString bare = BareFolder(path);
  if (!disk.Exists(bare)) disk.MakeFolder(bare);
}

}  // namespace tamo
