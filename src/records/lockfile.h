#pragma once

#include <QString>

#include "common/files.h"
#include "records/datafolder.h"

namespace tamo {

// Whether a project is locked: the text "True" or "False". Without a file, or with an empty one, it
// is not; with one that can't be read it is, since nothing says that it may be changed. Error
// numbers as Files has them.
int ReadLock(Files& files, const ProjectFolder& project, QString& locked);
int WriteLock(Files& files, const ProjectFolder& project, const QString& locked);

}  // namespace tamo
