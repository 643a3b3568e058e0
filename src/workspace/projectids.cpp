#include "workspace/projectids.h"

#include <QSet>
#include <algorithm>

#include "common/failure.h"
#include "common/paths.h"
#include "records/projectlist.h"
#include "records/projectnumber.h"

namespace tamo {
namespace {

constexpr int kMostTries = 100;  // of two programs that give way to each other

QString WithNumber(const QString& id, const ProjectNumber& number) {
  return id.left(id.lastIndexOf(QLatin1Char('-')) + 1) + DigitsOf(number);
}

}  // namespace

void ProjectIds::SeedProjectNumber() {
  QString line;
  if (ReadProjectNumber(kit_.files, kit_.shared, line) == kFileNotFound)
    WriteProjectNumber(kit_.files, kit_.shared, SeedNumber(kit_.platform.clock.Today()));
}

void ProjectIds::LoadProjectNumber() {
  const int error = ReadProjectNumber(kit_.files, kit_.shared, numberLine_);
  const NextNumber next = NumberAfter(numberLine_, kit_.platform.clock.Today());
  kit_.shared.JobID = next.number;
  // Of a file that can't be read it is not known which month it holds.
  if (next.newMonth && (error == kNoError || IsMissing(error))) {
    SaveProjectNumber();
    numberLine_ = next.number;
  }
  QStringList entries;
  ReadProjectList(kit_.files, kit_.shared, entries);
  kit_.shared.JobID = FreeId(estimator_.Text() + QLatin1Char('-') + next.number, KnownIds(entries));
}

void ProjectIds::SaveProjectNumber() {
  if (!kit_.shared.JobID.isEmpty()) WriteProjectNumber(kit_.files, kit_.shared, kit_.shared.JobID);
}

// Two programs that make a project at the same moment make two folders: whoever finds another one
// of its own number beside its own gives way.
void ProjectIds::MakeProject(const QStringList& entries) {
  QString& id = kit_.shared.JobID;
  ReadProjectNumber(kit_.files, kit_.shared, numberLine_);
  const ProjectNumber last = NumberInId(numberLine_);
  if (NumberInId(id) < last) id = CountedUp(WithNumber(id, last));
  for (int i = 0; i < kMostTries; ++i) {
    id = FreeId(id, KnownIds(entries));
    if (!MakeFolderOf(id)) continue;
    if (!SharesItsNumber(id)) break;
    GiveUpFolderOf(id);
  }
  MakeProjectFolders(kit_.files, kit_.shared);
}

QStringList ProjectIds::KnownIds(const QStringList& entries) const {
  QStringList known = kit_.files.GetDisk().Names(DataFolder(kit_.shared).Projects());
  for (const QString& entry : entries)
    known << IdToOpen(entry) << entry.section(QStringLiteral("   "), 0, 0);
  return known;
}

// In upper case: on some machines folders that differ in case only are one.
QString ProjectIds::FreeId(const QString& id, const QStringList& known) const {
  QSet<QString> taken;
  ProjectNumber highest;
  for (const QString& other : known) {
    taken << other.toUpper();
    highest = std::max(highest, NumberInId(other));
  }
  QString free = id;
  if (!(highest < NumberInId(id)) && !highest.month.isEmpty())
    free = CountedUp(WithNumber(id, highest));
  while (taken.contains(free.toUpper())) free = CountedUp(free);
  return free;
}

// False when the folder is there already, made by another program at this very moment. One that
// can't be made for another reason is made before the next save.
bool ProjectIds::MakeFolderOf(const QString& id) {
  const QString folder = DataFolder(kit_.shared).Project(id).Path();
  return kit_.files.MakeFolder(folder) == kNoError || !kit_.files.GetDisk().Exists(folder);
}

// Some other estimator's project has the same number.
bool ProjectIds::SharesItsNumber(const QString& id) const {
  const ProjectNumber own = NumberInId(id);
  if (own.month.isEmpty()) return false;
  const QStringList names = kit_.files.GetDisk().Names(DataFolder(kit_.shared).Projects());
  return std::count_if(names.begin(), names.end(), [&](const QString& name) {
           const ProjectNumber number = NumberInId(name);
           return !(number < own) && !(own < number);
         }) > 1;
}

void ProjectIds::GiveUpFolderOf(const QString& id) {
  kit_.files.GetDisk().RemoveFolder(BareFolder(DataFolder(kit_.shared).Project(id).Path()));
}

QString CountedUp(const QString& id) {
  const qsizetype number = id.lastIndexOf(QLatin1Char('-')) + 1;
  const qsizetype running = number + 4;
  const QString next = QString::number(id.mid(running).toULongLong() + 1);
  return id.left(running) + next.rightJustified(3, QLatin1Char('0'));
}

}  // namespace tamo
