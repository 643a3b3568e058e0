#pragma once

#include <QString>
#include <QStringList>

#include "common/files.h"
#include "common/textrows.h"
#include "records/datafolder.h"

namespace tamo {

// The project manager's file of a report, for another tool; it is never read back. The lines: the
// project, then each line of `report` but its first, each followed by a done flag that is off.
QStringList ManagerFileLines(const QString& jobID, const QString& jobName, const ListRows& report);

// Writes it into the data folder. A project name that can't be a file's name raises a
// RunTimeFailure that names it; a failed write becomes a pending save and its number is returned.
int WriteManagerFile(Files& files, const DataFolder& data, const QString& jobID,
                     const QString& jobName, const ListRows& report);

}  // namespace tamo
