#include "export/sheetrows.h"

#include <algorithm>

#include "common/textlines.h"
#include "export/csvfile.h"

namespace tamo {
namespace {

class CsvReader {
 public:
  explicit CsvReader(const QString& text) : text_(text), separator_(SeparatorOf(text)) {}

  SheetRows Read() {
    while (at_ < text_.size() && read_.problem.isEmpty()) Take(text_[at_++]);
    if (quoted_) Refuse(QStringLiteral("a quotation mark is opened and never closed"));
    EndRow();
    return std::move(read_);
  }

 private:
  static QChar SeparatorOf(const QString& text) {
    const QString first = text.section(u'\n', 0, 0);
    return !first.contains(u',') && first.contains(u';') ? u';' : u',';
  }

  void Refuse(const QString& why) {
    if (read_.problem.isEmpty()) read_.problem = QStringLiteral("line %1: %2").arg(begin_).arg(why);
  }

  void Take(QChar c) {
    if (c == u'\n' || (c == u'\r' && !IsFeed(at_))) ++line_;
    if (quoted_) return TakeQuoted(c);
    if (c == u'"' && cell_.isEmpty() && !closed_) {
      quoted_ = true;
    } else if (c == separator_) {
      EndCell();
    } else if (c == u'\r' || c == u'\n') {
      if (c == u'\n' || !IsFeed(at_)) EndRow();
    } else if (closed_) {
      Refuse(QStringLiteral("something stands behind a closing quotation mark"));
    } else {
      cell_ += c;
    }
  }

  void TakeQuoted(QChar c) {
    if (c != u'"') {
      cell_ += c;
    } else if (at_ < text_.size() && text_[at_] == u'"') {
      cell_ += c;
      ++at_;
    } else {
      quoted_ = false;
      closed_ = true;
    }
  }

  bool IsFeed(qsizetype at) const { return at < text_.size() && text_[at] == u'\n'; }

  void EndCell() {
    if (cells_.size() >= kMostSheetColumns) return Refuse(QStringLiteral("it has too many cells"));
    if (++taken_ > kMostSheetCells)
      return Refuse(QStringLiteral("there are more than %1 cells").arg(kMostSheetCells));
    cells_ += UnguardedCell(cell_);
    cell_.clear();
    closed_ = false;
  }

  void EndRow() {
    EndCell();
    const bool empty = std::all_of(cells_.begin(), cells_.end(),
                                   [](const QString& cell) { return cell.isEmpty(); });
    if (!empty && read_.rows.size() >= kMostSheetRows)
      Refuse(QStringLiteral("there are more than %1 rows").arg(kMostSheetRows));
    if (!empty) read_.rows.push_back({begin_, cells_});
    cells_.clear();
    begin_ = line_;
  }

  const QString& text_;
  const QChar separator_;
  SheetRows read_;
  QStringList cells_;
  QString cell_;
  qsizetype at_ = 0;
  qint64 taken_ = 0;  // cells
  int line_ = 1;
  int begin_ = 1;  // of the row
  bool quoted_ = false;
  bool closed_ = false;  // the cell was in quotation marks
};

}  // namespace

SheetRows ReadCsvRows(const QByteArray& bytes) {
  if (bytes.size() > kMostSheetBytes) return {{}, QStringLiteral("it is larger than 64 MB")};
  const QString text = DecodedText(bytes);
  if (!IsText(text)) return {{}, QStringLiteral("it is neither a text nor a workbook")};
  return CsvReader(text).Read();
}

SheetRows ReadSheetRows(const QByteArray& bytes) {
  return bytes.startsWith("PK\x03\x04") ? ReadXlsxRows(bytes) : ReadCsvRows(bytes);
}

}  // namespace tamo
