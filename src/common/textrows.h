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

  qsizetype size() const { return static_cast<qsizetype>(rows_.size()); }
  bool isEmpty() const { return rows_.empty(); }
  QString operator[](qsizetype at) const;
  qsizetype SizeOf(qsizetype at) const { return rows_[static_cast<size_t>(at)].size; }

  // One row, made of `parts`.
  void Add(std::initializer_list<QStringView> parts) { rows_.push_back(Written(parts)); }
  // One row of `count` characters of Latin-1, which the caller writes before anyone reads the row.
  char* AddNarrow(qsizetype count);
  // Another text for a row that is there.
  void SetRow(qsizetype at, std::initializer_list<QStringView> parts) {
    rows_[static_cast<size_t>(at)] = Written(parts);
  }
  TextRows& operator+=(const QString& row);
  TextRows& operator+=(const QStringList& rows);

  QStringList ToList() const;
  friend bool operator==(const TextRows& rows, const QStringList& list) {
    return rows.ToList() == list;
  }

 private:
  struct Row {
    const char* text = nullptr;
    int size = 0;  // characters
    bool wide = false;
  };

  char* Room(size_t bytes);
  Row Written(std::initializer_list<QStringView> parts);

  std::vector<std::unique_ptr<char[]>> blocks_;
  size_t blockSize_ = 0;  // of the last block, in bytes
  size_t used_ = 0;       // of it
  std::vector<Row> rows_;
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
  QString Joined() const;  // CR LF behind each

  // All rows as a list. Of a report it is made at the first call and takes its time.
  const QStringList& List() const;
  QStringList& Change();

 private:
  mutable QStringList list_;
  std::shared_ptr<const TextRows> report_;  // its rows count when it is there
};

}  // namespace tamo
