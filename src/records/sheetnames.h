#pragma once

#include <QString>
#include <QStringList>

#include "common/files.h"
#include "records/datafolder.h"

namespace tamo {

// The list of a project's rooms and that of its free areas: two lines a name, the second always
// "True" and without meaning. An odd last line is a name, too. Read by whole lines.
QStringList SheetNamesOf(const QString& text);
QStringList SheetNamesLines(const QStringList& names);

// Error numbers as Files has them; a list that could not be read is empty.
int ReadRoomNames(Files& files, const ProjectFolder& project, QStringList& names);
int WriteRoomNames(Files& files, const ProjectFolder& project, const QStringList& names);
int ReadAreaNames(Files& files, const ProjectFolder& project, QStringList& names);
int WriteAreaNames(Files& files, const ProjectFolder& project, const QStringList& names);

}  // namespace tamo
