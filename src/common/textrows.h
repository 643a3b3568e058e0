#pragma once

#include <QString>
#include <QStringList>
#include <QStringView>
#include <algorithm>
#include <initializer_list>
#include <memory>
#include <vector>

namespace tamo {

// Rows of which only the figures are kept: the text of a row is made when it is read. What is read
// never changes. From one thread at a time.
class RowMaker {
 public:
  virtual ~RowMaker() = default;
  virtual qsizetype Count() const = 0;
  virtual QString Row(qsizetype at) const = 0;
  virtual qsizetype SizeOf(qsizetype at) const = 0;
  virtual int Longest() const = 0;  // characters of the longest row
  virtual size_t Bytes() const = 0;
};

// Rows of text in a few large pieces of memory, one byte a character where that holds the row and
// eight bytes a row beside it: a report of millions of lines is made, kept and given back without a
// piece of memory for each of them. Rows are only added or replaced as a whole.
class TextRows {
 public:
  TextRows() = default;
  TextRows(std::initializer_list<QString> rows);
  TextRows(const QStringList& rows);
  // All rows of `maker`; none can be added to them or replaced.
  explicit TextRows(std::shared_ptr<const RowMaker> maker);
  ~TextRows();  // a large report is given back on a thread of its own
  TextRows(TextRows&& other) noexcept;
  TextRows& operator=(TextRows&& other) noexcept;
  TextRows(const TextRows&) = delete;
  TextRows& operator=(const TextRows&) = delete;

  qsizetype size() const { return size_; }
  bool isEmpty() const { return size_ == 0; }
  QString operator[](qsizetype at) const;
  qsizetype SizeOf(qsizetype at) const {
    return maker_ != nullptr ? maker_->SizeOf(at) : Read(at).size;
  }
  int Longest() const { return longest_; }  // characters of the longest row
  size_t Bytes() const;                     // of memory, as far as it is in use

  // One row, made of `parts`.
  void Add(std::initializer_list<QStringView> parts) { NewRow() = Written(parts); }
  // One row of `count` characters of Latin-1, which the caller writes before anyone reads the row.
  char* AddNarrow(qsizetype count) {
    Row row = 0;
    char* const text = Place(count, false, row);
    NewRow() = row;
    return text;
  }
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
  char* Room(size_t bytes) {
    if (static_cast<size_t>(blockEnd_ - blockNext_) < bytes) AddBlock(bytes);
    char* const room = blockNext_;
    blockNext_ += bytes;
    return room;
  }
  void AddBlock(size_t bytes);
  // The place of a text of `count` characters; `row` tells it.
  char* Place(qsizetype count, bool wide, Row& row) {
    if (count >= kLongRow) return PlaceLong(count, wide, row);
    longest_ = std::max(longest_, static_cast<int>(count));
    char* const text = Room(static_cast<size_t>(count) << (wide ? 1 : 0));
    row = RowOf(text, count, wide);
    return text;
  }
  char* PlaceLong(qsizetype count, bool wide, Row& row);
  Row RowOf(const char* text, qsizetype size, bool wide) const {
    const auto place = static_cast<Row>(text - blockBegin_);
    return (blocks_.size() - 1) << (1 + kSizeBits + kPlaceBits) | place << (1 + kSizeBits) |
           static_cast<Row>(size) << 1 | (wide ? 1U : 0U);
  }
  Row Written(std::initializer_list<QStringView> parts);
  Row& NewRow() {
    if (rowNext_ == rowEnd_) AddRows();
    ++size_;
    return *rowNext_++;
  }
  void AddRows();
  Row& At(qsizetype at);
  Text Read(qsizetype at) const;

  static constexpr int kSizeBits = 23;
  static constexpr int kPlaceBits = 24;
  static constexpr qsizetype kLongRow = (qsizetype(1) << kSizeBits) - 1;

  Blocks<char> blocks_;
  char* blockBegin_ = nullptr;  // of the last block
  char* blockNext_ = nullptr;   // what is free of it
  char* blockEnd_ = nullptr;
  size_t filled_ = 0;  // bytes in use of the blocks before it
  Blocks<Row> rows_;
  Row* rowNext_ = nullptr;
  Row* rowEnd_ = nullptr;
  qsizetype size_ = 0;
  int longest_ = 0;
  std::shared_ptr<const RowMaker> maker_;  // makes the rows when it is there
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
