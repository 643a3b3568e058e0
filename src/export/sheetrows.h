#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <vector>

namespace tamo {

// A row of a sheet that comes from elsewhere, with the number by which its maker finds it.
struct SheetRow {
  int line = 0;  // from 1; of a record over several lines the first
  QStringList cells;
};

// The rows of a sheet, or why it can't be read, in words.
struct SheetRows {
  std::vector<SheetRow> rows;  // without those that are empty
  QString problem;
};

// What is taken of a stranger's file; more is refused.
inline constexpr qint64 kMostSheetBytes = 64 << 20;
inline constexpr size_t kMostSheetRows = 100000;
inline constexpr qsizetype kMostSheetColumns = 1000;
// Over all rows, blank cells in front of others included; a repeated text counts each time.
inline constexpr qint64 kMostSheetCells = 4'000'000;
inline constexpr qint64 kMostSheetLetters = 64 << 20;

// Comma separated values by RFC 4180; line ends of any kind, a byte-order mark or none, semicolons
// where the first line has no comma. Cells come back as GuardedCell was given them.
SheetRows ReadCsvRows(const QByteArray& bytes);
// The first sheet of a workbook.
SheetRows ReadXlsxRows(const QByteArray& bytes);
// By its content: a workbook is a packed file, all else is text.
SheetRows ReadSheetRows(const QByteArray& bytes);

}  // namespace tamo
