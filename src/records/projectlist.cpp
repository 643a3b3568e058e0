#include "records/projectlist.h"

#include "common/columns.h"
#include "common/textlines.h"

namespace tamo {

int ReadProjectList(Files& files, const DataFolder& data, QStringList& entries) {
  return files.ReadLines(data.ProjectList(), entries);
}

int WriteProjectList(Files& files, const DataFolder& data, const QStringList& entries,
                     const QStringList& base) {
  return files.SaveLines(data.ProjectList(), entries, FileKind::List, JoinedLines(base));
}

QString ProjectEntry(const QString& id, const QString& name) {
  return id + Blanks(3) + name;
}

QString IdToOpen(const QString& entry) {
  return TrimmedBlanks(entry.left(10));
}

QString IdOfEntry(const QString& entry) {
  return TrimmedBlanks(entry.left(13));
}

QString NameOfEntry(const QString& entry) {
  return TrimmedBlanks(From(entry, 14));
}

}  // namespace tamo
