#pragma once

#include <QLocale>
#include <QString>
#include <QStringList>
#include <functional>

#include "command/commandline.h"
#include "common/disk.h"
#include "export/bytesink.h"

namespace tamo {

// How a command ends.
enum class ExitStatus {
  Done = 0,
  Found = 1,       // done, but something was found, or not counted
  Usage = 2,       // the command line can't be understood
  NoBid = 3,       // no such data folder or project, or it can't be read
  Stopped = 4,     // the report can't be made
  NotWritten = 5,  // the output could not be written
};

// What a command runs on. All of it outlives the run.
struct CommandPlatform {
  Disk& disk;
  ByteSink& out;
  std::function<void(const QString& line)> complain;  // on standard error
  bool outIsTerminal = false;
  QString programFolder;
  QString homeFolder;
  QString configFolder;
  QString version;
};

// Runs what a command line asks for. Nothing is ever written into the data folder: no sign that the
// project is open, no journal, no file that is missing. A PDF needs a QGuiApplication.
ExitStatus RunCommand(const CommandLine& line, const CommandPlatform& platform);
// The same from the arguments as they were typed, without the program's name.
ExitStatus RunCommand(const QStringList& arguments, const CommandPlatform& platform);

}  // namespace tamo
