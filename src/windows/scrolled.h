#pragma once

#include <QWidget>

namespace tamo {

// `inner` in a frameless area that scrolls it up and down where the window is too low for it; what
// gets the focus comes into sight. At least as wide as `inner` needs.
QWidget* Scrolled(QWidget* inner, int leastHeight);

}  // namespace tamo
