#pragma once

#include <QDate>

#include "common/disk.h"
#include "history/historyfolder.h"

namespace tamo {

// How long former states stay, and how much room they take.
struct HistoryLimits {
  qint64 mostBytes = 200'000'000;  // of the journal; the oldest days go first
  int fullDays = 7;      // each state of a file; of older days the first one: as the day began
  int deletedDays = 30;  // the last state of a deleted project
};

// Thins the journal with its age and keeps it below its size. A kill at any moment loses nothing,
// and programs that do it at the same time do no harm.
void TendJournal(Disk& disk, const HistoryFolder& folder, QDate today, const HistoryLimits& limits);

// Gives up the oldest file of the journal but `inUse`. False when there is none.
bool DropOldest(Disk& disk, const HistoryFolder& folder, const QString& inUse);

}  // namespace tamo
