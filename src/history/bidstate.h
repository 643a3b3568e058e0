#pragma once

#include <QByteArray>
#include <QMap>
#include <QString>

#include "common/disk.h"
#include "history/historyfolder.h"

namespace tamo {

// All that one project was at one moment: its small files, byte for byte, and the master markups,
// which the reports take for a project that has none of its own. Not in it are the plans, and who
// may change the project (its lock).
struct BidState {
  QString project;                  // its id
  QMap<QString, QByteArray> files;  // by their paths below the data folder, with slashes

  bool operator==(const BidState&) const = default;
};

// The folder of a project as a BidState has it: "Projects/12-2611001/".
QString FolderOfBid(const QString& project);

// As it stands on the disk. On an error number `problem` is the file that can't be read.
int ReadBidState(Disk& disk, const HistoryFolder& folder, const QString& project, BidState& state,
                 QString& problem);

// The state as the day `day` (yyyy-mm-dd) began, from the journal and what stands now.
BidState StateOfDay(Disk& disk, const HistoryFolder& folder, BidState now, const QByteArray& day);

// The days of which the journal knows something of the project, newest first.
QList<QByteArray> DaysOfBid(Disk& disk, const HistoryFolder& folder, const QString& project);

// Whether a file of a project belongs to its state. `path` as above.
bool BelongsToBid(const QString& project, const QString& path);

}  // namespace tamo
