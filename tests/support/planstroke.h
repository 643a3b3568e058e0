#pragma once

#include <QString>

#include "plans/plankey.h"

namespace tamo::test {

// Reads a key's name as "Enter", "Left", "Ctrl+Left", "Shift+Ctrl+Up", "Ctrl+Z", "Ctrl+Y", "Space".
// False when there is no such key; then `stroke` is unchanged.
bool PlanStrokeFromName(const QString& name, PlanStroke& stroke);

}  // namespace tamo::test
