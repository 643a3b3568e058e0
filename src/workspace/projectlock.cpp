#include "workspace/projectlock.h"

#include "records/lockfile.h"

namespace tamo {

void ProjectLock::LockProject() {
  if (kit_.shared.JobID.isEmpty() || !hold_.NeedWritable()) return;
  const bool locked = kit_.shared.Locked == QLatin1String("True");
  kit_.shared.Locked = locked ? QStringLiteral("False") : QStringLiteral("True");
  SaveLocked();
}

void ProjectLock::SaveLocked() {
  WriteLock(kit_.files, kit_.shared, kit_.shared.Locked);
}

void ProjectLock::LoadLocked() {
  ReadLock(kit_.files, kit_.shared, kit_.shared.Locked);
}

bool ProjectLock::NeedUnlocked() {
  if (kit_.shared.Locked != QLatin1String("True")) return hold_.NeedWritable();
  kit_.desk.GetMessages().Tell(QStringLiteral("Project is locked."));
  return false;
}

}  // namespace tamo
