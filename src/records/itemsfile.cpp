#include "records/itemsfile.h"

namespace tamo {

int ReadItemLines(Files& files, const ProjectFolder& project, QStringList& lines) {
  return files.ReadFields(project.Items(), lines);
}

int WriteItemLines(Files& files, const ProjectFolder& project, const QStringList& lines) {
  return files.SaveLines(project.Items(), lines, FileKind::Lines);
}

}  // namespace tamo
