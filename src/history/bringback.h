#pragma once

#include <QString>
#include <QStringList>

#include "common/files.h"
#include "history/bidstate.h"
#include "history/versionfile.h"

namespace tamo {

// Makes a project what it was. The state to come is written down first, as a file of its own; then
// each file of the project is replaced, and that file goes. Whoever is killed in between has it
// made good by the next start (FinishBringingBack), so that nobody works with half of it.
//
// An error number of the disk; then the project is as it was before, or will be so with the next
// start. The lock, plans and master markups stay as they are.
int BringBack(Files& files, const HistoryFolder& folder, const VersionHead& head,
              const BidState& state);

// Goes on where a kill stopped BringBack. The projects that are whole again.
QStringList FinishBringingBack(Files& files, const HistoryFolder& folder);

}  // namespace tamo
