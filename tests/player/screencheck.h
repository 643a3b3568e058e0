#pragma once

#include <QString>

#include "common/desk.h"
#include "windows/windowprobe.h"

namespace tamo::player {

// What the windows show that is not what the forms say: the first difference, in words; "" when
// there is none. Looks at every visible window, at every widget in it, at menus, at the notice of
// unsaved files, which must read `notice`, and, when the program is the one in front, at the focus.
QString FirstDifference(test::WindowProbe& keeper, Desk& desk, const QString& notice, bool front);

}  // namespace tamo::player
