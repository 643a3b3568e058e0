#pragma once

#include <QString>

namespace tamo {

// The name under which a project looks for its plan: the file name, cut at its last point, without
// one "-Marked" at its end. Separators of either kind are understood.
QString PlanNameOf(const QString& path);

// The path names the sample document: it is opened from the program folder and never saved.
bool NamesAbout(const QString& path);

// The file name of a plan's marked copy, from the plan's plain name, the same that the project's
// record will name. "" when no file can have that name; `refusal` then says why.
QString MarkedName(const QString& path, QString& refusal);

// "-Marked-Marked.pdf" at the end of a path cut back to one "-Marked".
QString WithoutDoubleMark(QString path);

}  // namespace tamo
