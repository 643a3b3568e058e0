#pragma once

#include <QString>
#include <QStringList>

#include "common/files.h"
#include "records/systemfile.h"

// Systems that leave or enter the library as files, and the printed page.
namespace tamo {

// An exported file: as a system's own, but without notes and end mark.
QString ExportedText(const SystemFile& system);

// What an import takes; nothing is read of a file that is larger.
inline constexpr qint64 kMostImportBytes = 16 * 1024 * 1024;
inline constexpr int kMostImportMaterials = 1000;

struct ImportedSystem {
  SystemFile system;  // without notes
  QString refusal;    // why it can't be taken, for a message; "" when it can
};

// Reads a file that may come from a stranger. It is taken whole or not at all: refused are a file
// that is too large, holds anything but text, names a system or a material that can't be a file's
// name, or ends in the middle of a material.
ImportedSystem ReadExported(Files& files, const QString& path);
// The same for the text of a file; `fileName` is for the message.
ImportedSystem CheckedExport(const QString& text, const QString& fileName);

// The lines of the printed page; values begin in column 31, but for one label that leaves them in
// column 30. A test holds it.
QStringList PrintedSystem(const SystemFile& system);

}  // namespace tamo
