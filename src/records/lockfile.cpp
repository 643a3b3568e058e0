#include "records/lockfile.h"

#include <QStringList>

#include "common/failure.h"

namespace tamo {

int ReadLock(Files& files, const ProjectFolder& project, QString& locked) {
  QStringList lines;
  const int error = files.ReadLines(project.Lock(), lines);
  locked = lines.isEmpty() ? QStringLiteral("False") : lines.first();
  return error;
}

int WriteLock(Files& files, const ProjectFolder& project, const QString& locked) {
  return files.SaveLines(project.Lock(), {locked});
}

}  // namespace tamo
