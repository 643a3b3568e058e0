#pragma once

#include <QString>
#include <QStringList>

#include "common/files.h"
#include "records/datafolder.h"

namespace tamo {

// What a paste did. It is whole, or nothing was copied, or what is missing stands here.
struct ProjectCopy {
  bool done = false;  // false: nothing was copied, because one of the projects has no folder, or no
                      // id that can be one, or because files of the source can't be read
  int copied = 0;
  QStringList left;     // the paths of the source that can't be read
  QStringList waiting;  // those of the target that could not be written yet: saves that wait
};

// The text of a copied file: every line ended by CR LF. In a project's record every line of exactly
// seven characters becomes `targetId`, whatever it says: a bid date of seven characters comes out
// as the target's id. A test holds it.
QString CopiedText(const QString& fileName, const QString& text, const QString& targetId);

// Fills project `targetId` from `sourceId`: the files that stand directly in the source's folder,
// then those of Systems, Rooms and ATOs. Saves that still wait are copied as they wait. Files of
// the same name in the target are replaced. Plans and project manager files are not copied.
ProjectCopy CopyProjectFiles(Files& files, const DataFolder& data, const QString& sourceId,
                             const QString& targetId);

}  // namespace tamo
