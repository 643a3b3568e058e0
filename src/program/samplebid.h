#pragma once

#include <QString>

#include "common/kit.h"

namespace tamo {

// Copies the sample bid of the program folder into the data folder: its project, and of the price
// library what is not there yet; nothing of the estimator's own is changed. The id of the project,
// "" when it can't be made (`problem` says why). A sample that is there already stays as it is.
QString CopySampleBid(const Kit& kit, QString& problem);

}  // namespace tamo
