#pragma once

#include "export/bytesink.h"
#include "export/tablefile.h"

namespace tamo {

// A text that begins like a formula gets an apostrophe in front, so that no spreadsheet computes
// what an estimator typed as a name; ReadCell takes it away again.
QString GuardedCell(QStringView text);
QString UnguardedCell(const QString& text);

// A table as comma separated values by RFC 4180, in UTF-8: commas and points whatever the country,
// CR LF behind each row, quotation marks around what needs them.
class CsvFile : public TableFile {
 public:
  // With `mark` it begins with the byte-order mark, by which spreadsheets know UTF-8. The sink
  // outlives this.
  CsvFile(ByteSink& sink, bool mark) : sink_(sink), mark_(mark) {}

  void Begin(const std::vector<TableColumn>& columns) override;
  void Row(std::span<const TableCell> cells, RowWeight weight) override;
  void Remark(const QString& text) override;
  int Finish() override;

 private:
  void AddText(QStringView text);
  void EndRow(size_t cells);

  ByteSink& sink_;
  bool mark_;
  size_t columns_ = 0;
  QByteArray waiting_;
  int error_ = 0;
};

}  // namespace tamo
