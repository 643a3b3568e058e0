#include "export/xlsxfile.h"

#include <xlsxwriter.h>

#include <algorithm>

#include "common/failure.h"
#include "common/numbers.h"
#include "export/safefile.h"

namespace tamo {
namespace {

constexpr qsizetype kLongestText = 32767;  // that a cell holds
constexpr size_t kMostColumns = 16384;

// In the order of ColumnKind. Twelve and a half per cent is kept as 12.5.
constexpr const char* kFormats[] = {"@", "#,##0.####", "#,##0.00", "0.##\"%\""};

size_t At(ColumnKind kind) {
  return static_cast<size_t>(kind);
}

double WidthOf(const TableColumn& column) {
  const auto name = static_cast<double>(column.name.size()) + 3;  // and the arrow of the filter
  const double wanted = column.width > 0 ? column.width : column.kind == ColumnKind::Text ? 28 : 13;
  return std::max(wanted, name);
}

lxw_format* NewFormat(lxw_workbook* book, ColumnKind kind, bool bold) {
  lxw_format* format = workbook_add_format(book);
  if (kind != ColumnKind::Text) format_set_num_format(format, kFormats[At(kind)]);
  if (bold) format_set_bold(format);
  return format;
}

}  // namespace

XlsxFile::XlsxFile(ByteSink& sink, const QString& title) : sink_(sink), title_(title) {
  if (!file_.open()) {
    error_ = kFileOther;
    return;
  }
  lxw_workbook_options options{};
  options.constant_memory = LXW_TRUE;
  book_ = workbook_new_opt(file_.fileName().toLocal8Bit().constData(), &options);
  if (book_ == nullptr) {
    error_ = kFileOther;
    return;
  }
  formats_.head = workbook_add_format(book_);
  format_set_bold(formats_.head);
  format_set_bottom(formats_.head, LXW_BORDER_THIN);
  format_set_text_wrap(formats_.head);
  for (const ColumnKind kind :
       {ColumnKind::Text, ColumnKind::Number, ColumnKind::Money, ColumnKind::Percent}) {
    formats_.plain[At(kind)] = NewFormat(book_, kind, false);
    formats_.total[At(kind)] = NewFormat(book_, kind, true);
  }
}

XlsxFile::~XlsxFile() {
  if (book_ != nullptr) lxw_workbook_free(book_);
}

void XlsxFile::Begin(const std::vector<TableColumn>& columns) {
  columns_ = columns;
  columns_.resize(std::min(columns_.size(), kMostColumns));
  NewSheet();
}

void XlsxFile::NewSheet() {
  if (book_ == nullptr) return;
  filtered_ = false;
  ++sheets_;
  const QString name = sheets_ == 1 ? title_ : QStringLiteral("%1 (%2)").arg(title_).arg(sheets_);
  sheet_ = workbook_add_worksheet(book_, name.toUtf8().constData());
  if (sheet_ == nullptr) {
    error_ = kFileOther;
    return;
  }
  for (size_t i = 0; i < columns_.size(); ++i) {
    const auto column = static_cast<lxw_col_t>(i);
    worksheet_set_column(sheet_, column, column, WidthOf(columns_[i]), nullptr);
  }
  worksheet_freeze_panes(sheet_, 1, 0);
  worksheet_repeat_rows(sheet_, 0, 0);
  worksheet_set_landscape(sheet_);
  worksheet_fit_to_pages(sheet_, 1, 0);
  worksheet_set_footer(sheet_, "&L&A&RPage &P of &N");
  row_ = 0;
  for (size_t i = 0; i < columns_.size(); ++i)
    WriteText(0, static_cast<lxw_col_t>(i), columns_[i].name, formats_.head);
  row_ = 1;
}

// The filter of the head reaches over all rows but the remarks.
void XlsxFile::EndTable() {
  if (filtered_ || sheet_ == nullptr || columns_.empty()) return;
  worksheet_autofilter(sheet_, 0, 0, row_ - 1, static_cast<lxw_col_t>(columns_.size() - 1));
  filtered_ = true;
}

unsigned XlsxFile::NextRow() {
  if (row_ >= rowsOfSheet) {
    EndTable();
    NewSheet();
  }
  return row_++;
}

void XlsxFile::Row(std::span<const TableCell> cells, RowWeight weight) {
  if (error_ != kNoError || sheet_ == nullptr) return;
  const unsigned row = NextRow();
  if (error_ != kNoError) return;
  auto* const* formats = weight == RowWeight::Total ? formats_.total : formats_.plain;
  for (size_t i = 0; i < std::min(cells.size(), columns_.size()); ++i) {
    const auto column = static_cast<lxw_col_t>(i);
    lxw_format* format = formats[At(columns_[i].kind)];
    if (cells[i].GetKind() == TableCell::Kind::Number) {
      if (worksheet_write_number(sheet_, row, column, CutTo15Digits(cells[i].Number()), format) !=
          LXW_NO_ERROR)
        error_ = kFileOther;
    } else if (cells[i].GetKind() == TableCell::Kind::Text) {
      WriteText(row, column, cells[i].Text(), format);
    }
  }
}

void XlsxFile::Remark(const QString& text) {
  if (error_ != kNoError || sheet_ == nullptr) return;
  EndTable();
  WriteText(NextRow(), 0, text, formats_.total[At(ColumnKind::Text)]);
}

// No text is ever a formula. What no XML can hold becomes the sign for what can't be shown.
void XlsxFile::WriteText(unsigned row, unsigned short column, QStringView text,
                         lxw_format* format) {
  if (text.isEmpty()) return;
  QString shown = text.first(std::min(text.size(), kLongestText)).toString();
  for (QChar& c : shown) {
    if (c.unicode() >= 0xFFFE || c.unicode() == 0) c = QChar::ReplacementCharacter;
  }
  if (worksheet_write_string(sheet_, row, column, shown.toUtf8().constData(), format) !=
      LXW_NO_ERROR)
    error_ = kFileOther;
}

int XlsxFile::Finish() {
  if (book_ == nullptr) return error_;
  EndTable();
  const lxw_error closed = workbook_close(book_);
  book_ = nullptr;
  if (closed != LXW_NO_ERROR && error_ == kNoError)
    error_ = closed == LXW_ERROR_CREATING_TMPFILE ? kDiskFull : kFileOther;
  if (error_ == kNoError) error_ = CopyFileInto(file_.fileName(), sink_);
  return error_;
}

}  // namespace tamo
