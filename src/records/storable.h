#pragma once

#include <QString>

namespace tamo {

// What must hold before something is stored.

// Raises a RunTimeFailure that names what is wrong when `name` can't be the name of a file. `what`
// is "room" or "area".
void RequireName(const QString& what, const QString& name);

// Guards a record against being saved over a file that could not be read when the record was
// loaded: raises a RunTimeFailure that names `what` unless `error` is 0, 53 or 76 (a missing file
// is an empty record).
void RequireReadable(int error, const QString& what);

}  // namespace tamo
