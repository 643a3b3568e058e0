#include "records/projectfolders.h"

#include <algorithm>

#include "common/paths.h"
#include "records/datafolder.h"

namespace tamo {
namespace {

constexpr char kNoProject[] = "Unknown Job ID";

bool IsOneOfAProject(const QString& name) {
  return std::any_of(std::begin(kProjectSubFolders), std::end(kProjectSubFolders),
                     [&](const char* known) { return name == QLatin1String(known); });
}

}  // namespace

void MakeFolderOfProjectAgain(Files& files, const QString& path) {
  const QString folder = FolderOf(path);
  if (!IsOneOfAProject(FileNameOf(folder))) return;
  const QString project = FolderOf(folder);
  if (FileNameOf(project) == QLatin1String(kNoProject)) return;
  Disk& disk = files.GetDisk();
  if (disk.IsFolder(project) && !disk.Exists(folder)) files.MakeFolder(folder);
}

}  // namespace tamo
