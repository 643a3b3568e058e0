#pragma once

#include <QDate>
#include <QDateTime>
#include <QString>
#include <QStringList>
#include <functional>

#include "common/disk.h"
#include "common/files.h"

namespace tamo {

class Clock {
 public:
  virtual ~Clock() = default;
  virtual QDate Today() const = 0;
  // For spans of time, and for when a project was opened; UTC.
  virtual QDateTime Now() const { return QDateTime::currentDateTimeUtc(); }
};

// Message boxes. Tell has an OK; Ask has Yes and No and answers true for Yes. Both return when
// answered.
class Messages {
 public:
  virtual ~Messages() = default;
  virtual void Tell(const QString& text) = 0;
  virtual bool Ask(const QString& text) = 0;
};

// A page-oriented text printer. Lines are printed in the font last set; EndPage ends the page, and
// with it the print job: the next line begins a new one. Errors are the printer's own business; the
// program prints on.
class Printer {
 public:
  virtual ~Printer() = default;
  virtual void SetFont(const QString& name, int points) = 0;
  virtual void PrintLine(const QString& line) = 0;
  virtual void EndPage() = 0;
  // Called before the first and after the last line of one print command, so that a printer that
  // writes a file can make one document of the pages. False: the user changed their mind, nothing
  // is printed.
  virtual bool BeginPrint(const QString& title) = 0;
  virtual void EndPrint() = 0;
};

class Clipboard {
 public:
  virtual ~Clipboard() = default;
  virtual void Clear() = 0;
  virtual void SetText(const QString& text) = 0;
};

// What the program stands on, passed in at the start. The references outlive the program.
struct Platform {
  Disk& disk;
  Clock& clock;
  Messages& messages;
  Printer& printer;
  Clipboard& clipboard;
  QString programFolder;  // zDir: no separator at its end
  QString homeFolder;     // in which the default data folder stands
  QString
      configFolder;  // the user's own configuration, used when the program folder can't be written
  // What former states of files are kept on; used from a thread of its own. None are kept without.
  Disk* historyDisk = nullptr;
};

class SystemClock : public Clock {
 public:
  QDate Today() const override { return QDate::currentDate(); }
};

}  // namespace tamo
