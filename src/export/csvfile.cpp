#include "export/csvfile.h"

#include <algorithm>

namespace tamo {
namespace {

constexpr qsizetype kPiece = 1 << 16;

bool BeginsFormula(QStringView text) {
  if (text.isEmpty() || text.front().isLetterOrNumber()) return false;
  while (text.startsWith(u'\'')) text = text.sliced(1);
  return !text.isEmpty() && QStringView(u"=+-@\t\r\n").contains(text.front());
}

bool NeedsQuotes(QStringView text) {
  if (text.isEmpty()) return false;
  if (text.front().isSpace() || text.back().isSpace()) return true;
  return std::any_of(text.begin(), text.end(), [](QChar c) {
    return c == u',' || c == u'"' || c == u'\r' || c == u'\n' || c == u';';
  });
}

}  // namespace

QString GuardedCell(QStringView text) {
  return BeginsFormula(text) ? u'\'' + text.toString() : text.toString();
}

QString UnguardedCell(const QString& text) {
  return text.startsWith(u'\'') && BeginsFormula(text) ? text.mid(1) : text;
}

void CsvFile::Begin(const std::vector<TableColumn>& columns) {
  columns_ = columns.size();
  if (mark_) waiting_ = "\xEF\xBB\xBF";
  for (size_t i = 0; i < columns.size(); ++i) {
    if (i > 0) waiting_ += ',';
    AddText(columns[i].name);
  }
  EndRow(columns_);
}

void CsvFile::Row(std::span<const TableCell> cells, RowWeight) {
  for (size_t i = 0; i < cells.size(); ++i) {
    if (i > 0) waiting_ += ',';
    if (cells[i].GetKind() == TableCell::Kind::Number) {
      waiting_ += PlainNumber(cells[i].Number());
    } else if (cells[i].GetKind() == TableCell::Kind::Text) {
      AddText(cells[i].Text());
    }
  }
  EndRow(cells.size());
}

void CsvFile::Remark(const QString& text) {
  AddText(text);
  EndRow(1);
}

int CsvFile::Finish() {
  if (error_ == 0 && !waiting_.isEmpty()) error_ = sink_.Write(waiting_);
  waiting_.clear();
  return error_;
}

void CsvFile::AddText(QStringView text) {
  const bool formula = BeginsFormula(text);
  if (!NeedsQuotes(text)) {
    if (formula) waiting_ += '\'';
    waiting_ += text.toUtf8();
    return;
  }
  QByteArray bytes = (formula ? QByteArray("'") : QByteArray()) + text.toUtf8();
  bytes.replace('"', "\"\"");
  waiting_ += '"' + bytes + '"';
}

// Every row has the same number of cells.
void CsvFile::EndRow(size_t cells) {
  for (size_t i = cells; i < columns_; ++i) waiting_ += ',';
  waiting_ += "\r\n";
  if (waiting_.size() < kPiece) return;
  if (error_ == 0) error_ = sink_.Write(waiting_);
  waiting_.clear();
}

}  // namespace tamo
