#pragma once

#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include "common/desk.h"
#include "common/files.h"
#include "common/kit.h"
#include "common/services.h"
#include "common/sharedfields.h"
#include "support/doubles.h"
#include "support/faultdisk.h"

namespace tamo::test {

// A machine of a test's own: a temporary folder, a disk that fails on demand, and doubles in the
// place of clock, messages, printer and clipboard. A fixture that derives from it makes a whole
// Program on `platform`.
class MachineRoom {
 public:
  QString Path(const QString& name) const { return folder.filePath(name); }
  QString Path(const char* name) const { return Path(QString::fromUtf8(name)); }

  // As another program would do it, past the faults of the disk. Folders are made as needed; each
  // line ends with CR LF.
  void Put(const QString& path, const QByteArray& bytes) const;
  void PutLines(const QString& path, const QStringList& lines) const;
  QByteArray Bytes(const QString& path) const;          // "" when there is no file
  QStringList WholeLinesOf(const QString& path) const;  // likewise

  QTemporaryDir folder;
  FaultDisk disk;
  FixedClock clock;
  ScriptedMessages messages;
  RecordingPrinter printer;
  RecordingClipboard clipboard;
  // The folders are there; in `home` the default data folder would stand.
  const Platform platform{disk,      clock,           messages,     printer,
                          clipboard, Path("program"), Path("home"), Path("config")};

 protected:
  MachineRoom();
  ~MachineRoom() = default;
};

// The same with the kit that forms are made with; no project is open.
class FormRoom : public MachineRoom {
 public:
  QString Data(const QString& name) const { return shared.DataPath + name; }

  Desk desk{messages};
  Files files{disk};
  SharedFields shared;
  Kit kit{desk, files, shared, platform};

 protected:
  FormRoom();
  ~FormRoom() = default;
};

}  // namespace tamo::test
