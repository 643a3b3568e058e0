#pragma once

#include <QString>
#include <QStringList>

#include "records/datafolder.h"
#include "records/linescanner.h"

namespace tamo {

// A building system as its .sys file holds it.
struct SystemFile {
  QString description;
  QString units;      // the takeoff unit
  QString unitPrice;  // a value of 0: the price comes from the materials
  QString lineColor;  // nine digits, "" or "NoColor"
  QString notes;      // lines that end in CR LF
  QStringList blocks;
  int reached = 0;  // of the first four, how many the file had; they were empty otherwise
};

// The lines of a file: name, unit, price, colour, the notes up to the end mark (one character of
// code 1 alone on its line), two lines that are dropped, the material rows. A file without an end
// mark is all notes. What a short file does not reach is empty.
//
// Each note line comes with its CR LF, so notes grow by one empty line with each save and load. A
// test holds it.
SystemFile ReadSystemFile(const QString& text);
// The same without the material rows, which `rows` then walks through; it lives as long as `text`.
SystemFile ScanSystemFile(QStringView text, LineScanner& rows);

// The system's file at `path`. Error numbers as Files has them; `system` is empty when there is
// nothing to read.
int ReadSystemFile(Files& files, const QString& path, SystemFile& system);

// What a takeoff line needs of a system, read delimited: a comma in the name or the unit shifts
// what follows. Empty when there is nothing to read.
struct SystemHead {
  QString units;
  QString lineColor;
};
int ReadSystemHeadDelimited(Files& files, const QString& path, SystemHead& head);

// The text that is written: only blocks with a material, each with three empty spare rows.
QString SystemFileText(const SystemFile& system);

// The blocks of an open system that have a material, twelve rows each.
QStringList StoredBlocks(const QStringList& system);

// A note in which no line can be taken for the end mark, every line end being CR LF.
QString StorableNotes(const QString& notes);

QString MasterSystemPath(const SharedFields& shared, const QString& name);
QString ProjectSystemPath(const SharedFields& shared, const QString& name);

}  // namespace tamo
