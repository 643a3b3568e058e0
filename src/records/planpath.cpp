#include "records/planpath.h"

#include <QStringList>

namespace tamo {

int ReadPlanPath(Files& files, const DataFolder& data, PlanPath& path) {
  QStringList lines;
  const int error = files.ReadLines(data.PickedPlans(), lines);
  path = {lines.value(0), lines.value(1)};
  return error;
}

int WritePlanPath(Files& files, const DataFolder& data, const PlanPath& path) {
  return files.SaveLines(data.PickedPlans(), {path.folders, path.plans}, FileKind::Latest);
}

}  // namespace tamo
