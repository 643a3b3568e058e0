#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QString>

#include "common/disk.h"
#include "common/programrun.h"

namespace tamo {

// The sign in a project's folder that a program has it open for writing. It is made by that program
// alone and exclusively, so that of two that open a project one gets it; locks of the file system
// itself, which shared drives keep badly, are not needed.
//
// Eight lines: the user, the machine's name, its own number, the process, when that began, the run,
// when the project was opened and when the sign was last renewed (UTC). Only the last line ever
// changes, in its place: whoever has moved the file away is not disturbed.
struct InUse {
  ProgramRun owner;
  QDateTime taken;
  QDateTime renewed;  // invalid while it is being rewritten
  QByteArray bytes;   // as they stand in the file, damaged or not

  // False for a damaged sign: who left it is not known.
  bool Whole() const { return !owner.run.isEmpty() && taken.isValid(); }
};

// Error numbers as Disk has them. 53 or 76: nobody has the project open.
int ReadInUse(Disk& disk, const QString& path, InUse& sign);

// 58 when there is one already. When it can't be written whole it is taken away again.
int TakeInUse(Disk& disk, const QString& path, const ProgramRun& owner, const QDateTime& now);

// Writes the time anew when the sign still is `owner`'s; otherwise 58.
int RenewInUse(Disk& disk, const QString& path, const ProgramRun& owner, const QDateTime& now);

// Takes `owner`'s own sign away; another's stays.
void ReleaseInUse(Disk& disk, const QString& path, const ProgramRun& owner);

// Takes away a sign whose owner is gone, when it still is exactly the `left` one: a program that
// was quicker has put its own there. Then 58.
int BreakInUse(Disk& disk, const QString& path, const InUse& left, const ProgramRun& breaker);

}  // namespace tamo
