#include "common/programfolder.h"

#include <QDir>
#include <QFileInfo>

namespace tamo {

QString FindProgramFolder(const QString& executableFolder) {
  for (const char* place : {"", "/../share/tamo", "/../data", "/../../data"}) {
    const QString folder = executableFolder + QLatin1String(place);
    if (QFileInfo::exists(folder + QStringLiteral("/Blank.pdf")))
      return QDir::toNativeSeparators(QDir::cleanPath(folder));
  }
  return QDir::toNativeSeparators(executableFolder);
}

}  // namespace tamo
