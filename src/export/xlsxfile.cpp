#include "export/xlsxfile.h"

#include <QRegularExpression>

#include <algorithm>
#include <cmath>

#include "common/failure.h"
#include "common/numbers.h"
#include "export/safefile.h"
#include "export/xlsxlibrary.h"

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

// Without what a sum of fractions leaves behind the fifteenth digit. Most figures are whole.
double Exact(double number) {
  const bool whole = std::abs(number) < 1e15 && number == std::trunc(number);
  return whole ? number : CutTo15Digits(number);
}

lxw_format* NewFormat(const XlsxLibrary& lib, lxw_workbook* book, ColumnKind kind, bool bold) {
  lxw_format* format = lib.AddFormat(book);
  if (kind != ColumnKind::Text) lib.SetNumbers(format, kFormats[At(kind)]);
  if (bold) lib.SetBold(format);
  return format;
}

}  // namespace

XlsxFile::XlsxFile(ByteSink& sink, const QString& title)
    : sink_(sink), title_(title), lib_(XlsxLibrary::Get()) {
  if (lib_ == nullptr) {
    error_ = kNotOffered;
    return;
  }
  if (!file_.open()) {
    error_ = kFileOther;
    return;
  }
  lxw_workbook_options options{};
  options.constant_memory = LXW_TRUE;
  book_ = lib_->NewBook(file_.fileName().toLocal8Bit().constData(), &options);
  if (book_ == nullptr) {
    error_ = kFileOther;
    return;
  }
  formats_.head = lib_->AddFormat(book_);
  lib_->SetBold(formats_.head);
  lib_->SetBottom(formats_.head, LXW_BORDER_THIN);
  lib_->SetWrap(formats_.head);
  for (const ColumnKind kind :
       {ColumnKind::Text, ColumnKind::Number, ColumnKind::Money, ColumnKind::Percent}) {
    formats_.plain[At(kind)] = NewFormat(*lib_, book_, kind, false);
    formats_.total[At(kind)] = NewFormat(*lib_, book_, kind, true);
  }
}

XlsxFile::~XlsxFile() {
  if (book_ != nullptr) lib_->FreeBook(book_);
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
  sheet_ = lib_->AddSheet(book_, name.toUtf8().constData());
  if (sheet_ == nullptr) {
    error_ = kFileOther;
    return;
  }
  for (size_t i = 0; i < columns_.size(); ++i) {
    const auto column = static_cast<lxw_col_t>(i);
    lib_->SetColumn(sheet_, column, column, WidthOf(columns_[i]), nullptr);
  }
  lib_->Freeze(sheet_, 1, 0);
  lib_->RepeatRows(sheet_, 0, 0);
  lib_->SetLandscape(sheet_);
  lib_->FitToPages(sheet_, 1, 0);
  lib_->SetFooter(sheet_, "&L&A&RPage &P of &N");
  row_ = 0;
  for (size_t i = 0; i < columns_.size(); ++i)
    WriteText(0, static_cast<lxw_col_t>(i), columns_[i].name, formats_.head);
  row_ = 1;
}

// The filter of the head reaches over all rows but the remarks.
void XlsxFile::EndTable() {
  if (filtered_ || sheet_ == nullptr || columns_.empty()) return;
  lib_->Filter(sheet_, 0, 0, row_ - 1, static_cast<lxw_col_t>(columns_.size() - 1));
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
      if (lib_->WriteNumber(sheet_, row, column, Exact(cells[i].Number()), format) != LXW_NO_ERROR)
        error_ = kFileOther;
    } else if (cells[i].GetKind() == TableCell::Kind::Text) {
      WriteText(row, column, cells[i].Text(), format);
    }
  }
}

void XlsxFile::Remark(const QString& text) {
  if (error_ != kNoError || sheet_ == nullptr) return;
  EndTable();
  const unsigned row = NextRow();
  if (error_ == kNoError) WriteText(row, 0, text, formats_.total[At(ColumnKind::Text)]);
}

// No text is ever a formula. What no XML can hold becomes the sign for what can't be shown.
void XlsxFile::WriteText(unsigned row, unsigned short column, QStringView text,
                         lxw_format* format) {
  if (text.isEmpty()) return;
  QString shown = text.toString();
  for (QChar& c : shown) {
    if (c.unicode() >= 0xFFFE || c.unicode() == 0) c = QChar::ReplacementCharacter;
  }
  // What reads like the sign of a character that no XML holds is no such sign.
  static const QRegularExpression sign(QStringLiteral("_(x[0-9A-Fa-f]{4}_)"));
  if (shown.contains(QLatin1String("_x"))) shown.replace(sign, QStringLiteral("_x005F_\\1"));
  shown.truncate(kLongestText);
  if (lib_->WriteString(sheet_, row, column, shown.toUtf8().constData(), format) != LXW_NO_ERROR)
    error_ = kFileOther;
}

int XlsxFile::Finish() {
  if (book_ == nullptr) return error_;
  EndTable();
  const lxw_error closed = lib_->CloseBook(book_);
  book_ = nullptr;
  if (closed != LXW_NO_ERROR && error_ == kNoError)
    error_ = closed == LXW_ERROR_CREATING_TMPFILE ? kDiskFull : kFileOther;
  if (error_ == kNoError) error_ = CopyFileInto(file_.fileName(), sink_);
  return error_;
}

}  // namespace tamo
