#include "workspace/projectids.h"

#include "common/failure.h"
#include "records/projectlist.h"
#include "records/projectnumber.h"

namespace tamo {

void ProjectIds::SeedProjectNumber() {
  QString line;
  if (ReadProjectNumber(kit_.files, kit_.shared, line) == kFileNotFound)
    WriteProjectNumber(kit_.files, kit_.shared, SeedNumber(kit_.platform.clock.Today()));
}

void ProjectIds::LoadProjectNumber() {
  ReadProjectNumber(kit_.files, kit_.shared, numberLine_);
  const NextNumber next = NumberAfter(numberLine_, kit_.platform.clock.Today());
  kit_.shared.JobID = next.number;
  if (next.newMonth) {
    SaveProjectNumber();
    numberLine_ = next.number;
  }
  QStringList entries;
  ReadProjectList(kit_.files, kit_.shared, entries);
  const QSet<QString> taken = TakenIds(entries);
  QString id = estimator_.Text() + QLatin1Char('-') + next.number;
  while (taken.contains(id.toUpper())) id = CountedUp(id);
  kit_.shared.JobID = id;
}

void ProjectIds::SaveProjectNumber() {
  if (!kit_.shared.JobID.isEmpty()) WriteProjectNumber(kit_.files, kit_.shared, kit_.shared.JobID);
}

void ProjectIds::MakeProject(const QStringList& entries) {
  const QSet<QString> taken = TakenIds(entries);
  QString& id = kit_.shared.JobID;
  while (taken.contains(id.toUpper()) || !MakeFolderOf(id)) id = CountedUp(id);
  MakeProjectFolders(kit_.files, kit_.shared);
}

// In upper case: on some machines folders that differ in case only are one.
QSet<QString> ProjectIds::TakenIds(const QStringList& entries) const {
  QSet<QString> taken;
  for (const QString& entry : entries)
    taken << IdToOpen(entry).toUpper() << entry.section(QStringLiteral("   "), 0, 0).toUpper();
  for (const QString& name : kit_.files.GetDisk().Names(DataFolder(kit_.shared).Projects()))
    taken << name.toUpper();
  return taken;
}

// False when the folder is there already, made by another program at this very moment. One that
// can't be made for another reason is made before the next save.
bool ProjectIds::MakeFolderOf(const QString& id) {
  const QString folder = DataFolder(kit_.shared).Project(id).Path();
  return kit_.files.MakeFolder(folder) == kNoError || !kit_.files.GetDisk().Exists(folder);
}

QString CountedUp(const QString& id) {
  const qsizetype number = id.lastIndexOf(QLatin1Char('-')) + 1;
  const qsizetype running = number + 4;
  const QString next = QString::number(id.mid(running).toULongLong() + 1);
  return id.left(running) + next.rightJustified(3, QLatin1Char('0'));
}

}  // namespace tamo
