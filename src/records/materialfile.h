#pragma once

#include <QString>
#include <QStringList>

#include "records/datafolder.h"
#include "records/materialblock.h"

namespace tamo {

// One material of the library as its .mat file holds it: the first nine rows of a material block.
struct MaterialFile {
  MaterialBlock block;
  int reached = 0;  // lines that the file had, at most nine; what it did not reach is empty
};

// Lines are taken in their order, whatever they hold: a file with a tag line lost or doubled gives
// shifted values. Tests hold it.
MaterialFile ReadMaterialFile(const QString& text);

// Always nine lines, one for each tag, so that a file reads back as it was written.
QString MaterialFileText(const MaterialBlock& block);

// Materials lie in the master library only.
QString MaterialPath(const SharedFields& shared, const QString& name);

}  // namespace tamo
