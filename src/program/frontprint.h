#pragma once

#include "common/kit.h"

namespace tamo {

// Prints what stands in the window of `form`: by the form's own entry where it has one, else the
// lists in it under its caption. A window in which nothing stands says so.
void PrintFront(const Kit& kit, Form& form);

}  // namespace tamo
