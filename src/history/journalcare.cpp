#include "history/journalcare.h"

#include <QMap>
#include <QStringList>

#include "common/failure.h"
#include "common/paths.h"
#include "history/historyrecord.h"
#include "history/journalreader.h"

namespace tamo {
namespace {

constexpr qsizetype kDay = 10;  // characters of a date

QDate DayOf(const QString& name) {
  return QDate::fromString(name.left(kDay), Qt::ISODate);
}

QString ThinnedName(const QString& day) {
  return day + QLatin1String(kJournalEnding);
}

// One file for the day, with the first state of each file. Whoever finds that a file of the day has
// gone meanwhile leaves the work to the program that took it.
void ThinDay(Disk& disk, const HistoryFolder& folder, const QString& day,
             const QStringList& names) {
  if (names == QStringList{ThinnedName(day)}) return;
  QMap<QString, FormerState> first;
  for (const QString& name : names) {
    const bool read =
        ReadJournalFile(disk, folder.Journal(name), {}, [&](const FormerState& state) {
          const auto known = first.constFind(state.path);
          if (known == first.constEnd() || state.when < known->when) first[state.path] = state;
        });
    if (!read) return;
  }
  QByteArray text;
  for (const FormerState& state : first) {
    text += state.existed ? RecordText(WholeRecord(state.when, state.path, state.text))
                          : RecordText({state.when, {}, HistoryRecord::Kind::New, state.path, {}});
  }
  if (WriteHistoryFile(disk, folder.Journal(ThinnedName(day)), text) != kNoError) return;
  for (const QString& name : names) {
    if (name != ThinnedName(day)) disk.RemoveFile(folder.Journal(name));
  }
}

void ThinOldDays(Disk& disk, const HistoryFolder& folder, QDate today, int fullDays) {
  QMap<QString, QStringList> days;
  for (const QString& name : JournalFiles(disk, folder)) {
    const QDate day = DayOf(name);
    if (day.isValid() && day.daysTo(today) > fullDays) days[name.left(kDay)] += name;
  }
  for (auto day = days.constBegin(); day != days.constEnd(); ++day)
    ThinDay(disk, folder, day.key(), day.value());
}

}  // namespace

bool DropOldest(Disk& disk, const HistoryFolder& folder, const QString& inUse) {
  for (const QString& name : JournalFiles(disk, folder)) {
    const QString path = folder.Journal(name);
    if (path != inUse && disk.RemoveFile(path) == kNoError) return true;
  }
  return false;
}

void TendJournal(Disk& disk, const HistoryFolder& folder, QDate today,
                 const HistoryLimits& limits) {
  ThinOldDays(disk, folder, today, limits.fullDays);
  const QStringList names = JournalFiles(disk, folder);
  qint64 size = 0;
  for (const QString& name : names) size += disk.Size(folder.Journal(name));
  for (const QString& name : names) {
    if (size <= limits.mostBytes) break;
    const QString path = folder.Journal(name);
    const qint64 less = disk.Size(path);
    if (disk.RemoveFile(path) == kNoError) size -= less;
  }
}

}  // namespace tamo
