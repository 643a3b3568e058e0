#pragma once

#include <QString>
#include <QStringList>

#include "common/files.h"
#include "records/datafolder.h"

namespace tamo {

// The bottom line items of a project, one ItemLine a line. Read delimited: a comma makes two of one
// item, leading blanks are dropped. Error numbers as Files has them; a list that could not be read
// is empty.
int ReadItemLines(Files& files, const ProjectFolder& project, QStringList& lines);
int WriteItemLines(Files& files, const ProjectFolder& project, const QStringList& lines);

}  // namespace tamo
