#pragma once

#include <QKeySequence>

#include "windows/builder.h"

namespace tamo {

// A key of the window that chooses the menu entry of that name.
void GiveMenuKey(Builder& b, const QKeySequence& keys, const char* entry);

}  // namespace tamo
