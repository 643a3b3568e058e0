#include "workspace/conflictcopies.h"

#include "common/paths.h"
#include "records/datafolder.h"

namespace tamo {
namespace {

constexpr int kSecondsBetweenLooks = 60;

}  // namespace

bool IsConflictCopy(const QString& fileName) {
  for (const char* sign :
       {"conflicted copy", "conflict copy", ".sync-conflict-", "case conflict", ".conflict"}) {
    if (fileName.contains(QLatin1String(sign), Qt::CaseInsensitive)) return true;
  }
  return false;
}

void ConflictCopies::Tick() {
  if (looked_.secsTo(kit_.platform.clock.Now()) >= kSecondsBetweenLooks) LookAround();
}

void ConflictCopies::LookAround() {
  looked_ = kit_.platform.clock.Now();
  found_.clear();
  const DataFolder data(kit_.shared);
  LookIn(data.Path());
  LookIn(data.Systems());
  if (kit_.shared.JobID.isEmpty()) return;
  const ProjectFolder project(kit_.shared);
  LookIn(project.Path());
  for (const char* name : kProjectSubFolders) LookIn(project.SubFolder(name));
}

void ConflictCopies::LookIn(const QString& folder) {
  for (const QString& name : kit_.files.GetDisk().Names(BareFolder(folder))) {
    if (IsConflictCopy(name)) found_ += folder + name;
  }
}

QString ConflictCopies::Notice() const {
  if (found_.isEmpty()) return {};
  QString text =
      QStringLiteral(
          "A sync program has left another version of a file: %1. It is not counted. "
          "Compare the two, keep the right one under its own name, and remove the other.")
          .arg(found_.first());
  if (found_.size() > 1) text += QStringLiteral(" (%1 such files.)").arg(found_.size());
  return text + QStringLiteral(" Click here to look again.");
}

}  // namespace tamo
