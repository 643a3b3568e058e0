#pragma once

#include <QString>
#include <QStringView>
#include <initializer_list>
#include <span>
#include <vector>

namespace tamo {

// A report as a table of typed figures, for spreadsheets and other programs: handed over row by
// row while the report is made, so that one of millions of lines is never held as a whole.

enum class ColumnKind {
  Text,
  Number,   // a quantity, manhours
  Money,    // dollars
  Percent,  // 12.5 is twelve and a half per cent
};

struct TableColumn {
  QString name;
  ColumnKind kind = ColumnKind::Text;
  int width = 0;  // characters that it is made wide on a sheet; 0: what its kind needs
};

// A figure, a text, or nothing. A text is only looked at: it lives at least as long as the call
// that hands it over.
class TableCell {
 public:
  enum class Kind { Nothing, Number, Text };

  TableCell() = default;
  TableCell(double number) : kind_(Kind::Number), number_(number) {}
  TableCell(const QString& text) : TableCell(QStringView(text)) {}
  TableCell(QStringView text) : kind_(Kind::Text), text_(text) {}
  template <size_t N>
  TableCell(const char16_t (&text)[N]) : TableCell(QStringView(text)) {}

  Kind GetKind() const { return kind_; }
  double Number() const { return number_; }
  QStringView Text() const { return text_; }

 private:
  Kind kind_ = Kind::Nothing;
  double number_ = 0;
  QStringView text_;
};

// What a row is among the others: a total sums up rows above it.
enum class RowWeight { Plain, Total };

class TableSink {
 public:
  virtual ~TableSink() = default;
  // Once, before all rows. The first column is always a text.
  virtual void Begin(const std::vector<TableColumn>& columns) = 0;
  // A cell for each column; cells that are missing at the end are empty.
  virtual void Row(std::span<const TableCell> cells, RowWeight weight) = 0;

  void Add(std::initializer_list<TableCell> cells, RowWeight weight = RowWeight::Plain) {
    Row({cells.begin(), cells.size()}, weight);
  }
};

}  // namespace tamo
