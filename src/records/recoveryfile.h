#pragma once

#include <QList>
#include <QString>
#include <QStringList>
#include <utility>

#include "common/disk.h"
#include "common/programrun.h"

namespace tamo {

// What stands in a form and waits there for its last step (Exit Settings, the button of the project
// panel, leaving the bottom line). It is kept in a file of the run's own, beside the user's
// settings, so that a crash does not lose it; no other file is touched by it.
struct WaitingEntries {
  QString form;
  QString dataPath;                           // of the project
  QString project;                            // its id; "" when it is a new one, or none
  QList<std::pair<QString, QString>> values;  // name of the field and its text, in order

  QString Value(const QString& name) const;  // "" when it is not there
  QStringList Values(const QString& name) const;
  bool operator==(const WaitingEntries& other) const = default;
};

// The file of one run. An entry costs no wait for the device: it is written into a file with a
// higher number, beside the one that the device has confirmed, which goes when the new one is
// confirmed, too. So a killed program loses nothing, and a power cut only what came after the last
// Confirm. Error numbers as Disk has them.
class RecoveryFile {
 public:
  RecoveryFile(Disk& disk, const QString& folder);
  ~RecoveryFile() { EndRun(run_); }  // the file stays, as after a crash
  RecoveryFile(const RecoveryFile&) = delete;
  RecoveryFile& operator=(const RecoveryFile&) = delete;

  // All of it anew; nothing to keep removes the file.
  int Write(const QList<WaitingEntries>& entries);
  // Brings to the device what was written or removed last.
  int Confirm();

 private:
  void RemoveAllBut(const QStringList& kept);

  Disk& disk_;
  const QString folder_;
  const ProgramRun run_;
  int number_ = 0;
  QStringList paths_;     // those that stand, oldest first
  QString confirmed_;     // which of them the device has; "" when none
  bool removed_ = false;  // and the device may not know of it
};

// What runs of this machine left that ended without storing it, oldest names first. `files` are the
// paths, to be removed once it is kept elsewhere. A damaged file gives what can be read of it.
QList<WaitingEntries> ReadLeftRecoveries(Disk& disk, const QString& folder, QStringList& files);

}  // namespace tamo
