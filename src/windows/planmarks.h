#pragma once

#include "windows/builder.h"

namespace tamo {

// The list of the plan's marks, with the field that names the chosen one, and its keys in the
// window: F6 shows or hides it, F2 names the chosen mark.
QWidget* PlanMarks(Builder& b);

}  // namespace tamo
