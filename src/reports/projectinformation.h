#pragma once

#include <QString>
#include <QStringList>

#include "common/files.h"
#include "reports/projectrecord.h"
#include "reports/reportsource.h"

namespace tamo {

// Who, when and what is bid.
Report ProjectInformation(const QString& jobID, const ProjectFacts& facts);

// The lines of the project manager's file of a report: the project, then each line of `report` but
// its first, each followed by a done flag that is off.
QStringList ProjectFileLines(const QString& jobID, const QString& jobName, const ListRows& report);
// Writes that file into the data folder. A project name that can't be a file's name raises a
// RunTimeFailure that names it; a failed write becomes a pending save and its number is returned.
int MakeProjectFile(Files& files, const QString& dataPath, const QString& jobID,
                    const QString& jobName, const ListRows& report);

}  // namespace tamo
