#pragma once

#include <QByteArray>
#include <QString>
#include <vector>

#include "common/disk.h"
#include "history/bidstate.h"

namespace tamo {

// A kept version of a bid: one text file with a few lines for a person and every file of the bid,
// as the journal writes them.
struct VersionHead {
  // Who asked for it.
  enum class Reason { Kept, BeforeBringingBack, Deleted };
  QString name;         // "as sent to the owner"
  QString project;      // its id
  QString projectName;  // as the project list has it
  QByteArray when;      // as HistoryRecord has it
  Reason reason = Reason::Kept;
};

QByteArray VersionText(const VersionHead& head, const BidState& state);

// False when it is none, or not whole: then nothing of it is used.
bool ReadVersionText(const QByteArray& text, VersionHead& head, BidState& state);
// The head alone, from the first lines.
bool ReadVersionHead(const QByteArray& text, VersionHead& head);

struct Version {
  VersionHead head;
  QString path;
};

// The versions of a project, newest first. Files that are none are left out.
std::vector<Version> VersionsOf(Disk& disk, const HistoryFolder& folder, const QString& project);
// The last states of deleted projects, newest first.
std::vector<Version> DeletedBids(Disk& disk, const HistoryFolder& folder);
bool ReadVersion(Disk& disk, const QString& path, VersionHead& head, BidState& state);

// Writes a version in one step; an error number of the disk. `path` is where it lies then.
int WriteVersion(Disk& disk, const HistoryFolder& folder, const VersionHead& head,
                 const BidState& state, QString& path);

}  // namespace tamo
