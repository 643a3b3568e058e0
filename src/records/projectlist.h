#pragma once

#include <QString>
#include <QStringList>

#include "common/files.h"
#include "records/datafolder.h"

namespace tamo {

// The list of projects, one entry a line in the order of creation: the id, three blanks, the name.
// Error numbers as Files has them; a list that could not be read is empty.
int ReadProjectList(Files& files, const DataFolder& data, QStringList& entries);
// Merged with what another program added or took out since `base`, the entries as they were read.
int WriteProjectList(Files& files, const DataFolder& data, const QStringList& entries,
                     const QStringList& base);

QString ProjectEntry(const QString& id, const QString& name);
// The first 10 characters, trimmed: the project that an entry opens.
QString IdToOpen(const QString& entry);
// The first 13 characters, trimmed, and everything from column 14, trimmed: what an entry says
// against the project's own record.
QString IdOfEntry(const QString& entry);
QString NameOfEntry(const QString& entry);

}  // namespace tamo
