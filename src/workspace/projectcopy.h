#pragma once

#include <QString>
#include <QStringList>

#include "common/files.h"
#include "records/datafolder.h"

namespace tamo {

// What a paste did. Files that could not be read or written are passed over by the command; their
// paths stand here.
struct ProjectCopy {
  bool done = false;  // false: one of the projects has no folder, or no id that can be one
  int copied = 0;
  QStringList left;
};

// The text of a copied file: every line ended by CR LF. In a project's record every line of exactly
// seven characters becomes `targetId`, whatever it says: a bid date of seven characters comes out
// as the target's id. A test holds it.
QString CopiedText(const QString& fileName, const QString& text, const QString& targetId);

// Fills project `targetId` from `sourceId`: the files that stand directly in the source's folder,
// then those of Systems, Rooms and ATOs. Files of the same name in the target are replaced. Plans
// and project manager files are not copied.
ProjectCopy CopyProjectFiles(Files& files, const DataFolder& data, const QString& sourceId,
                             const QString& targetId);

}  // namespace tamo
