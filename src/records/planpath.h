#pragma once

#include <QString>

#include "common/files.h"
#include "records/datafolder.h"

namespace tamo {

// Where plans were last picked, in all projects. Folders are texts with either separator; "" when
// the file does not say. Error numbers as Files has them.
struct PlanPath {
  QString folders;  // where the list of folders stood
  QString plans;    // the folder whose plans were listed
};
int ReadPlanPath(Files& files, const DataFolder& data, PlanPath& path);
int WritePlanPath(Files& files, const DataFolder& data, const PlanPath& path);

}  // namespace tamo
