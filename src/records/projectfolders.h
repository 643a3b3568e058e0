#pragma once

#include <QString>

#include "common/files.h"

namespace tamo {

// A file is about to be saved at `path`. When that is in one of the folders of a project (Rooms,
// Systems, Plans ...) and only this one went missing, it is made again. A project that is gone as a
// whole stays gone, and what belongs to no project gets no folder.
void MakeFolderOfProjectAgain(Files& files, const QString& path);

}  // namespace tamo
