#include "records/areafile.h"

#include "common/failure.h"
#include "common/paths.h"

namespace tamo {

int ReadAreaDelimited(Files& files, const ProjectFolder& project, const QString& area,
                      QStringList& lines) {
  lines.clear();
  if (!NameRefusal(area).isEmpty()) return kFileNotFound;
  return files.ReadFields(project.AreaFile(area), lines);
}

int WriteAreaFile(Files& files, const ProjectFolder& project, const QString& area,
                  const QStringList& lines) {
  return files.SaveLines(project.AreaFile(area), lines, FileKind::Lines);
}

}  // namespace tamo
