#include "records/lockfile.h"

#include <QStringList>

#include "common/failure.h"

namespace tamo {

int ReadLock(Files& files, const ProjectFolder& project, QString& locked) {
  QStringList lines;
  const int error = files.ReadLines(project.Lock(), lines);
  const bool unknown = error != kNoError && !IsMissing(error) && error != kGone;
  locked = unknown ? QStringLiteral("True") : QStringLiteral("False");
  if (!lines.isEmpty()) locked = lines.first();
  return error;
}

int WriteLock(Files& files, const ProjectFolder& project, const QString& locked) {
  return files.SaveLines(project.Lock(), {locked});
}

}  // namespace tamo
