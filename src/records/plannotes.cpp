#include "records/plannotes.h"

#include "common/textlines.h"

namespace tamo {

int ReadPlanNotes(Files& files, const ProjectFolder& project, QString& notes) {
  QStringList lines;
  const int error = files.ReadLines(project.PlanNotes(), lines);
  notes = JoinedLines(lines);
  return error;
}

int WritePlanNotes(Files& files, const ProjectFolder& project, const QString& notes) {
  return files.SaveLines(project.PlanNotes(), {notes});
}

}  // namespace tamo
