#pragma once

#include "windows/formwindow.h"

namespace tamo {

// Shows every key of the window over it; Escape, Enter or the same key puts it away. Nothing waits
// for it.
void ShowKeysPage(FormWindow& window);

}  // namespace tamo
