#pragma once

#include "windows/look.h"

namespace tamo {

// The style sheet of the program in the colours of `look`: fields, lists, buttons, menus, and the
// frames that bear a "role".
QString StyleSheetOf(const Look& look);

}  // namespace tamo
