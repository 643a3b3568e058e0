#pragma once

#include <QString>

namespace tamo {

// The folder with the program's own files: that of the executable, or, in an installed program or a
// build tree, the one that belongs to it.
QString FindProgramFolder(const QString& executableFolder);

}  // namespace tamo
