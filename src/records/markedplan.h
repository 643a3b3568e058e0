#pragma once

#include <QString>

#include "records/datafolder.h"

namespace tamo {

// The plain name of a plan: the file name without ".pdf" (once or twice, any case) and without
// "-Marked".
QString PlainPlanName(const QString& planLocation);

// The file name of a plan's marked copy, and where the project keeps it.
QString MarkedPlanName(const QString& plainName);
QString MarkedPlanPath(const QString& planLocation, const ProjectFolder& project);

}  // namespace tamo
