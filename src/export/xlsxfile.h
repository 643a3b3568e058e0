#pragma once

#include <QTemporaryFile>
#include <memory>
#include <vector>

#include "export/bytesink.h"
#include "export/tablefile.h"

struct lxw_workbook;
struct lxw_worksheet;
struct lxw_format;

namespace tamo {

struct XlsxLibrary;

// A table as a workbook for spreadsheets: typed cells, a frozen head with a filter, formats for
// money and quantities, totals in bold. A table longer than a sheet goes on on the next one. It is
// written beside the table and only then handed on, so that no more than a row is ever held.
class XlsxFile : public TableFile {
 public:
  // `title` names the sheet: at most 24 characters, none of []:*?/\. The sink outlives this.
  XlsxFile(ByteSink& sink, const QString& title);
  ~XlsxFile() override;
  XlsxFile(const XlsxFile&) = delete;
  XlsxFile& operator=(const XlsxFile&) = delete;

  void Begin(const std::vector<TableColumn>& columns) override;
  void Row(std::span<const TableCell> cells, RowWeight weight) override;
  void Remark(const QString& text) override;
  int Finish() override;

  static constexpr unsigned kRowsOfSheet = 1048576;  // its head included
  unsigned rowsOfSheet = kRowsOfSheet;               // fewer only in tests

 private:
  struct Formats {
    lxw_format* head;
    lxw_format* plain[4];
    lxw_format* total[4];
  };

  void NewSheet();
  void EndTable();
  unsigned NextRow();
  void WriteText(unsigned row, unsigned short column, QStringView text, lxw_format* format);

  ByteSink& sink_;
  QString title_;
  const XlsxLibrary* lib_;
  QTemporaryFile file_;
  lxw_workbook* book_ = nullptr;
  lxw_worksheet* sheet_ = nullptr;
  Formats formats_{};
  std::vector<TableColumn> columns_;
  unsigned row_ = 0;
  int sheets_ = 0;
  bool filtered_ = false;
  int error_ = 0;
};

}  // namespace tamo
