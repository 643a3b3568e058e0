#pragma once

#include <QString>
#include <QStringList>
#include <QStringView>
#include <initializer_list>
#include <memory>
#include <vector>

namespace tamo {

// Rows of text in a few large pieces of memory, one byte a character where that holds the row: a
// report of millions of lines is made, kept and given back without a piece of memory for each of
// them. Rows are only added or replaced as a whole.
class TextRows {
 public:
  TextRows() = default;
  TextRows(std::initializer_list<QString> rows);
  TextRows(const QStringList& rows);
  TextRows(TextRows&& other) noexcept;
  TextRows& operator=(TextRows&& other) noexcept;
  TextRows(const TextRows&) = delete;
  TextRows& operator=(const TextRows&) = delete;

  qsizetype size() const { return size_; }
  bool isEmpty() const { return size_ == 0; }
  QString operator[](qsizetype at) const;
  qsizetype SizeOf(qsizetype at) const { return At(at).size; }
  int Longest() const { return longest_; }  // characters of the longest row

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
  struct Row {
    const char* text;
    int size;  // characters
    bool wide;
  };

  static constexpr qsizetype kPage = 4096;  // rows

  char* Room(size_t bytes);
  Row Written(std::initializer_list<QStringView> parts);
  Row& NewRow();
  Row& At(qsizetype at) { return pages_[static_cast<size_t>(at / kPage)][at % kPage]; }
  const Row& At(qsizetype at) const { return pages_[static_cast<size_t>(at / kPage)][at % kPage]; }

  std::vector<std::unique_ptr<char[]>> blocks_;
  size_t blockSize_ = 0;  // of the last block, in bytes
  size_t used_ = 0;       // of it
  std::vector<std::unique_ptr<Row[]>> pages_;
  qsizetype size_ = 0;
  int longest_ = 0;
};

// The rows of a list: texts that can be changed one by one, or a whole report, shared until one of
// its rows is changed.
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

  // All rows as a list. Of a report it is made at the first call and takes its time.
  const QStringList& List() const;
  QStringList& Change();

 private:
  mutable QStringList list_;
  std::shared_ptr<const TextRows> report_;  // its rows count when it is there
};

}  // namespace tamo
