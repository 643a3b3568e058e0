#pragma once

#include <QHash>
#include <QString>

#include "common/disk.h"

namespace tamo {

// Finds files whose names differ from the asked one only in case. While a look stands (Begin to
// End, which may be nested) each folder is listed once, however many names are asked for.
class FolderNames {
 public:
  // The path of the file in the same folder, "" when there is none.
  QString OtherCase(Disk& disk, const QString& path);
  void Begin() { ++looks_; }
  void End();
  void Forget() { folders_.clear(); }  // something was made or removed

 private:
  using Names = QHash<QString, QString>;  // in lower case, as they stand
  static Names NamesIn(Disk& disk, const QString& folder);

  int looks_ = 0;
  QHash<QString, Names> folders_;
};

}  // namespace tamo
