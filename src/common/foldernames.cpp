#include "common/foldernames.h"

#include "common/paths.h"

namespace tamo {

FolderNames::Names FolderNames::NamesIn(Disk& disk, const QString& folder) {
  Names names;
  for (const QString& name : disk.Names(folder)) {
    const QString key = name.toCaseFolded();
    if (!names.contains(key)) names.insert(key, name);  // the first in the order of the names
  }
  return names;
}

QString FolderNames::OtherCase(Disk& disk, const QString& path) {
  const QString folder = FolderOf(path);
  const QString name = FileNameOf(path);
  if (folder.isEmpty() || name.isEmpty()) return {};
  QString found;
  if (looks_ > 0) {
    auto known = folders_.find(folder);
    if (known == folders_.end()) known = folders_.insert(folder, NamesIn(disk, folder));
    found = known->value(name.toCaseFolded());
  } else {
    for (const QString& other : disk.Names(folder)) {
      if (other.compare(name, Qt::CaseInsensitive) == 0) {
        found = other;
        break;
      }
    }
  }
  return found.isEmpty() ? QString() : folder + PlatformSeparator() + found;
}

void FolderNames::End() {
  if (--looks_ == 0) folders_.clear();
}

}  // namespace tamo
