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

// The file of the run in `folder`, written anew as a whole; with nothing to keep it is removed.
// Error numbers as Disk has them.
int WriteRecovery(Disk& disk, const QString& folder, const ProgramRun& run,
                  const QList<WaitingEntries>& entries);

// What runs of this machine left that ended without storing it, oldest names first. `files` are the
// paths, to be removed once it is kept elsewhere. A damaged file gives what can be read of it.
QList<WaitingEntries> ReadLeftRecoveries(Disk& disk, const QString& folder, QStringList& files);

}  // namespace tamo
