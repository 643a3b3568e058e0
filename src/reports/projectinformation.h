#pragma once

#include <QString>

#include "reports/projectrecord.h"
#include "reports/reportsource.h"

namespace tamo {

// Who, when and what is bid.
// `table` gets the same; may be null.
Report ProjectInformation(const QString& jobID, const ProjectFacts& facts,
                          TableSink* table = nullptr);

}  // namespace tamo
