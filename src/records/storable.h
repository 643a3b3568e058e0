#pragma once

#include <QString>

namespace tamo {

// What must hold before something is stored.

// Raises a RunTimeFailure that names what is wrong when `name` can't be the name of a file. `what`
// is "room" or "area".
void RequireName(const QString& what, const QString& name);

}  // namespace tamo
