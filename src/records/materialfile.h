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

// `ratioTags` and `laborTags` stand in the places of the two tag lines: one text each as a rule,
// none when no prompt told the direction, two when it told both.
QString MaterialFileText(const MaterialBlock& block, const QStringList& ratioTags,
                         const QStringList& laborTags);

// Materials lie in the master library only.
QString MaterialPath(const SharedFields& shared, const QString& name);

}  // namespace tamo
