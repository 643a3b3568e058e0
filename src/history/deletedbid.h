#pragma once

#include <QDate>
#include <QString>

#include "common/files.h"
#include "history/historyfolder.h"
#include "history/versionfile.h"

namespace tamo {

// A project that is about to be deleted: its last state is kept, and its plans and the project
// manager's files, which are moved. An error number of the disk; then nothing was moved.
int KeepDeleted(Files& files, const HistoryFolder& folder, const VersionHead& head);

// Makes the folder of a deleted project again, with all that was kept. Refused with 75 when there
// is a folder of that name. What was kept goes when all of it is there.
int BringBackDeleted(Files& files, const HistoryFolder& folder, const Version& deleted);

// Deleted projects that are kept for longer than `days`.
void ForgetDeleted(Disk& disk, const HistoryFolder& folder, QDate today, int days);

}  // namespace tamo
