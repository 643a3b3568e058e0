// Whatever bytes a sheet from elsewhere holds, as text or as a workbook: reading it ends, stays
// within what is taken of a stranger's file.

#include <cstdint>
#include <cstdlib>

#include "export/csvfile.h"
#include "export/sheetrows.h"

namespace {

void Must(bool holds) {
  if (!holds) std::abort();
}

void Check(const tamo::SheetRows& read) {
  Must(read.rows.size() <= tamo::kMostSheetRows + 1);
  for (const tamo::SheetRow& row : read.rows) {
    Must(row.line > 0 && row.cells.size() <= tamo::kMostSheetColumns);
    Must(!row.cells.join(QString()).isEmpty());
    for (const QString& cell : row.cells)
      Must(tamo::UnguardedCell(tamo::GuardedCell(cell)) == cell);
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
  Check(tamo::ReadCsvRows(bytes));
  Check(tamo::ReadXlsxRows(bytes));
  return 0;
}
