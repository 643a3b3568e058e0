#pragma once

#include <QByteArray>
#include <QString>

#include "common/disk.h"

namespace tamo {

// A new file that takes the place of another in one step: it is written beside it, brought to the
// device, renamed over it, and its folder is brought to the device. It takes over the rights, the
// owner and the extended attributes of the old file as far as the system lets it. Of a symbolic
// link the file at its end is replaced; of a hard link only the one name.
//
// Error numbers as Disk has them, and 1002 when all is done but the folder's sync: the new file
// stands there, and a power cut could still bring back the old one.
class Replacement {
 public:
  Replacement(Disk& disk, const QString& path);
  Replacement(const Replacement&) = delete;
  Replacement& operator=(const Replacement&) = delete;

  // First of all. 76 when there is no such folder. The folder at the end of a symbolic link is
  // swept: no start of the program looks into it.
  int Begin();
  int Handle() const { return handle_; }               // of the open new file
  const QString& Unfinished() const { return name_; }  // its name until Finish
  // Last of all, unless Begin failed. With an `error` of what went before, or when a step fails,
  // the new file is taken away again and the old one stays.
  int Finish(int error);
  // The same for a file that is not there: 58 when another program has made it since.
  int FinishNew(int error);
  // The same for a file that another program may have stored since it was looked at: `displaced`
  // gets what the old file held in the moment in which its place was taken. Null where the file
  // system can't tell.
  int FinishSwapped(int error, QByteArray& displaced);

 private:
  int Ready(int error);
  int Done(int error);

  Disk& disk_;
  QString path_;
  QString target_;  // the same, or what the link at `path_` leads to
  QString name_;
  int handle_ = -1;
};

// Whether `name` is that of an unfinished file whose program is surely gone. `age` is the time
// since it was last written, in seconds, -1 when it is not known: of a program on another machine
// nothing else can be told.
bool LeftByTheDead(const QString& name, qint64 age);

// Removes from `folder` itself the unfinished files of programs that are surely gone.
void SweepUnfinished(Disk& disk, const QString& folder);

// The ending of the names of unfinished files.
inline constexpr char kUnfinishedEnding[] = ".tamo-unfinished";

}  // namespace tamo
