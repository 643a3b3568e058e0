#pragma once

#include <QString>

#include "common/sharedfields.h"
#include "records/datafolder.h"

namespace tamo {

// The name under which a project looks for its plan: the file name, cut at its last point, without
// one "-Marked" at its end. Separators of either kind are understood.
QString PlanNameOf(const QString& path);

// The path names the sample document: it is opened from the program folder and never saved.
bool NamesAbout(const QString& path);

// Where a project keeps the marked copy of a plan, by the plan's plain name, the same that the
// project's record will name. "" when no file can have that name; `refusal` then says why.
QString MarkedCopyOf(const QString& path, const ProjectFolder& project, QString& refusal);

// A file of the program folder.
QString ProgramFile(const SharedFields& shared, const char* name);

// "-Marked-Marked.pdf" at the end of a path cut back to one "-Marked".
QString WithoutDoubleMark(QString path);

}  // namespace tamo
