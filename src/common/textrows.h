#pragma once

#include <QString>
#include <QStringList>
#include <QStringView>
#include <initializer_list>
#include <memory>
#include <vector>

namespace tamo {

// Rows of text in a few large pieces of memory, one byte a character where that holds the row and
// eight bytes a row beside it: a report of millions of lines is made, kept and given back without a
// piece of memory for each of them. Rows are only added or replaced as a whole.
class TextRows {
 public:
  TextRows() = default;
  TextRows(std::initializer_list<QString> rows);
  TextRows(const QStringList& rows);
  ~TextRows();  // a large report is given back on a thread of its own
  TextRows(TextRows&& other) noexcept;
  TextRows& operator=(TextRows&& other) noexcept;
  TextRows(const TextRows&) = delete;
  TextRows& operator=(const TextRows&) = delete;

  qsizetype size() const { return size_; }
  bool isEmpty() const { return size_ == 0; }
  QString operator[](qsizetype at) const;
  qsizetype SizeOf(qsizetype at) const { return Read(at).size; }
  int Longest() const { return longest_; }  // characters of the longest row
  size_t Bytes() const;                     // of memory, as far as it is in use

  // One row, made of `parts`.
  void Add(std::initializer_list<QStringView> parts) { NewRow() = Written(parts); }
  // One row of `count` characters of Latin-1, which the caller writes before anyone reads the row.
  char* AddNarrow(qsizetype count);
  // Another text for a row that is there.
  void SetRow(qsizetype at, std::initializer_list<QStringView> parts) { At(at) = Written(parts); }
  TextRows& operator+=(const QString& row);
  TextRows& operator+=(const QStringList& rows);

  QStringList ToList() const;
  friend bool operator==(const TextRows& rows, const QStringList& list) {
    return rows.ToList() == list;
  }

 private:
  // Where a row's text stands: block 16 bits, place in it 24, characters 23, wide 1. A row too long
  // for the characters has a block of its own, at whose begin its size stands.
  using Row = quint64;
  struct Text {
    const char* text;
    qsizetype size;
    bool wide;
  };
  // The blocks of a row of elements; they never move and double up to 16 MB, which the system hands
  // out and takes back in one piece.
  template <typename T>
  using Blocks = std::vector<std::unique_ptr<T[]>>;

  void Swap(TextRows& other) noexcept;
  char* Room(size_t bytes);
  char* Place(qsizetype count, bool wide, Row& row);
  Row Written(std::initializer_list<QStringView> parts);
  Row& NewRow();
  Row& At(qsizetype at);
  Text Read(qsizetype at) const;

  Blocks<char> blocks_;
  size_t blockSize_ = 0;  // of the last block, in bytes
  size_t used_ = 0;       // of it
  size_t filled_ = 0;     // bytes of the blocks before it
  Blocks<Row> rows_;
  qsizetype size_ = 0;
  int longest_ = 0;
};

// The rows of a list: texts that can be changed one by one, or a whole report.
class ListRows {
 public:
  ListRows() = default;
  ListRows(const QStringList& rows) : list_(rows) {}
  explicit ListRows(TextRows&& rows) : report_(std::make_shared<TextRows>(std::move(rows))) {}

  int Count() const {
    return static_cast<int>(report_ != nullptr ? report_->size() : list_.size());
  }
  QString At(int row) const { return report_ != nullptr ? (*report_)[row] : list_[row]; }
  qsizetype SizeOf(int row) const {
    return report_ != nullptr ? report_->SizeOf(row) : list_[row].size();
  }
  int Longest() const;     // characters of the longest row
  QString Joined() const;  // CR LF behind each

  QStringList List() const { return report_ != nullptr ? report_->ToList() : list_; }
  // The rows to be changed; a report becomes a list first.
  QStringList& Change();

 private:
  QStringList list_;
  std::shared_ptr<const TextRows> report_;  // its rows count when it is there
};

}  // namespace tamo
