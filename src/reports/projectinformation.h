#pragma once

#include <QString>

#include "reports/projectrecord.h"
#include "reports/reportsource.h"

namespace tamo {

// Who, when and what is bid.
Report ProjectInformation(const QString& jobID, const ProjectFacts& facts);

}  // namespace tamo
