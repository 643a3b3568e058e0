#pragma once

#include <QString>
#include <QStringList>

#include "command/command.h"
#include "support/faultdisk.h"

namespace tamo::test {

// A command as it is played: what it wrote, what it complained of, how it ended.
struct PlayedCommand {
  ExitStatus status = ExitStatus::Done;
  QByteArray out;
  QStringList complaints;
  QStringList Lines() const;  // of `out`
};

// The folders of a machine that has no settings: `home` holds the data folder Tamo.
PlayedCommand PlayCommand(FaultDisk& disk, const QString& home, const QStringList& arguments);
PlayedCommand PlayCommand(const QString& home, const QStringList& arguments);

// Every file below a folder with its bytes and times.
QStringList Snapshot(const QString& folder);

// tests/data.
QString DataPathOf(const QString& name);
bool CopyFolder(const QString& from, const QString& to);

}  // namespace tamo::test
