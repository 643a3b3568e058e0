#pragma once

#include <QString>

#include "common/files.h"
#include "records/datafolder.h"

namespace tamo {

// The notes on the plans of a project, free text. A line end follows each line that is read, and
// one follows the text that is written: notes that are loaded and saved grow by an empty line. A
// test holds it. Error numbers as Files has them; without a file the notes are empty.
int ReadPlanNotes(Files& files, const ProjectFolder& project, QString& notes);
int WritePlanNotes(Files& files, const ProjectFolder& project, const QString& notes);

}  // namespace tamo
