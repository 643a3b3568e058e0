#pragma once

#include <QString>

#include "common/services.h"
#include "support/doubles.h"
#include "support/faultdisk.h"

namespace tamo::player {

// The machine that a scenario plays on: two folders, and what a test puts in the place of disk,
// clock, message boxes, printer and clipboard. One for each scenario.
class Machine {
 public:
  // Both without a separator at the end.
  Machine(const QString& programFolder, const QString& homeFolder);
  Machine(const Machine&) = delete;
  Machine& operator=(const Machine&) = delete;

  const QString& ProgramFolder() const { return programFolder_; }
  const QString& HomeFolder() const { return homeFolder_; }
  Platform GetPlatform();

  // {home} and {program} replaced by the folders.
  QString Expanded(QString text) const;
  // A scenario's path: below the home folder, or with @ in front below the program folder.
  QString PathOf(const QString& path) const;

  // As another program would do it: past the faults of the disk. False when it can't be done.
  static bool WriteFile(const QString& path, const QByteArray& bytes);
  static bool Copy(const QString& from, const QString& to);  // a file, or a folder with all in it
  static bool Remove(const QString& path);
  // Everything below a folder, paths relative to it, folders with a slash at the end, sorted. The
  // sign that a program has a project open is left out, and the history of a data folder.
  static QStringList Everything(const QString& folder);

  test::FaultDisk disk;
  RealDisk historyDisk;
  test::FixedClock clock;
  test::ScriptedMessages messages;
  test::RecordingPrinter printer;
  test::RecordingClipboard clipboard;

 private:
  QString programFolder_;
  QString homeFolder_;
};

}  // namespace tamo::player
