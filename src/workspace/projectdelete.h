#pragma once

#include <QString>
#include <QStringList>

#include "common/files.h"
#include "records/datafolder.h"

namespace tamo {

// Removes project `id` from the disk: the files of Rooms, Systems, ATOs, Plans and PM and those
// folders, then the files of the project's folder, and the folder.
//
// It removes nothing outside the project's folder: an id that is no plain folder name removes
// nothing, a link is taken away as a link and never followed, and folders that a project does not
// have by itself stay with all that is in them. What can't be removed is passed over. Returns the
// paths that are still there: empty when the project is gone.
QStringList DeleteProjectFiles(Files& files, const DataFolder& data, const QString& id);

// Some file of the project itself is there, not only what the estimator put beside it.
bool HoldsProjectFiles(Files& files, const DataFolder& data, const QString& id);

}  // namespace tamo
