#include "history/bidstate.h"

#include <QSet>
#include <algorithm>
#include <array>

#include "common/failure.h"
#include "common/paths.h"
#include "history/journalreader.h"

namespace tamo {
namespace {

constexpr char kMasterMarkups[] = "Markups.tamo";
constexpr std::array<const char*, 6> kPlanEndings = {".pdf",  ".png", ".jpg",
                                                     ".jpeg", ".tif", ".tiff"};
constexpr std::array<const char*, 4> kPassing = {"Locked.tamo", ".lock", ".tamo-unfinished",
                                                 ".tamo-recovery"};
constexpr qsizetype kDay = 10;  // characters of a date

int AddFile(Disk& disk, const HistoryFolder& folder, const QString& path, BidState& state,
            QString& problem) {
  QByteArray bytes;
  const int error = disk.Read(folder.Whole(path), bytes);
  if (error == kNoError) {
    state.files.insert(path, bytes);
  } else {
    problem = folder.Whole(path);
  }
  return error;
}

// The files that stand directly in `below`, which ends in a slash.
int AddFolder(Disk& disk, const HistoryFolder& folder, const QString& below, BidState& state,
              QString& problem) {
  for (const QString& name : disk.Names(BareFolder(folder.Whole(below)))) {
    const QString path = below + name;
    if (!BelongsToBid(state.project, path) || disk.IsFolder(folder.Whole(path))) continue;
    if (const int error = AddFile(disk, folder, path, state, problem); error != kNoError)
      return error;
  }
  return kNoError;
}

}  // namespace

QString FolderOfBid(const QString& project) {
  return QStringLiteral("Projects/") + project + QLatin1Char('/');
}

bool BelongsToBid(const QString& project, const QString& path) {
  if (path == QLatin1String(kMasterMarkups)) return true;
  if (!path.startsWith(FolderOfBid(project))) return false;
  const auto ends = [&](const char* ending) {
    return path.endsWith(QLatin1String(ending), Qt::CaseInsensitive);
  };
  return std::none_of(kPlanEndings.begin(), kPlanEndings.end(), ends) &&
         std::none_of(kPassing.begin(), kPassing.end(), ends);
}

int ReadBidState(Disk& disk, const HistoryFolder& folder, const QString& project, BidState& state,
                 QString& problem) {
  state = {project, {}};
  const QString below = FolderOfBid(project);
  if (disk.Exists(folder.Whole(QLatin1String(kMasterMarkups)))) {
    const int error = AddFile(disk, folder, QLatin1String(kMasterMarkups), state, problem);
    if (error != kNoError) return error;
  }
  if (const int error = AddFolder(disk, folder, below, state, problem); error != kNoError)
    return error;
  for (const char* part : kProjectSubFolders) {
    const QString sub = below + QLatin1String(part) + QLatin1Char('/');
    if (const int error = AddFolder(disk, folder, sub, state, problem); error != kNoError)
      return error;
  }
  return kNoError;
}

// What stood in a file until a moment of this day or later, for the first time, stood in it when
// the day began.
BidState StateOfDay(Disk& disk, const HistoryFolder& folder, BidState now, const QByteArray& day) {
  QMap<QString, FormerState> first;
  ReadJournal(disk, folder, {}, [&](const FormerState& state) {
    if (state.when < day || !BelongsToBid(now.project, state.path)) return;
    const auto known = first.constFind(state.path);
    if (known == first.constEnd() || state.when < known->when) first[state.path] = state;
  });
  for (const FormerState& state : first) {
    if (state.existed) {
      now.files[state.path] = state.text;
    } else {
      now.files.remove(state.path);
    }
  }
  return now;
}

QList<QByteArray> DaysOfBid(Disk& disk, const HistoryFolder& folder, const QString& project) {
  QSet<QByteArray> days;
  ReadJournal(disk, folder, FolderOfBid(project), [&](const FormerState& state) {
    if (BelongsToBid(project, state.path)) days += state.when.left(kDay);
  });
  QList<QByteArray> list = days.values();
  std::sort(list.begin(), list.end(), std::greater<>());
  return list;
}

}  // namespace tamo
