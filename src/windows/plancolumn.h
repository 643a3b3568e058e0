#pragma once

#include "windows/builder.h"

namespace tamo {

// The narrow column beside the plan: what is looked at all the time. It scrolls in a low window.
QWidget* PlanColumn(Builder& builder);

}  // namespace tamo
