#pragma once

#include "records/inusefile.h"

namespace tamo {

// What the estimator reads about a project that another program has open. `now` is the time here.
QString ReadOnlyText(const InUse& sign, const QDateTime& now);
QString ReadOnlyTitle(const InUse& sign);
QString TakeOverQuestion(const InUse& sign, const QDateTime& now);
QString TakenOverText(const InUse& sign);

}  // namespace tamo
