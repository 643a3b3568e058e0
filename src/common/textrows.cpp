#include "common/textrows.h"

#include <algorithm>
#include <cstring>
#include <utility>

namespace tamo {
namespace {

constexpr size_t kFirstBlock = size_t(1) << 12;  // bytes
constexpr size_t kLargestBlock = size_t(1) << 20;

}  // namespace

TextRows::TextRows(std::initializer_list<QString> rows) {
  for (const QString& row : rows) Add({row});
}

TextRows::TextRows(const QStringList& rows) {
  *this += rows;
}

TextRows::TextRows(TextRows&& other) noexcept {
  *this = std::move(other);
}

TextRows& TextRows::operator=(TextRows&& other) noexcept {
  if (this == &other) return *this;
  blocks_ = std::exchange(other.blocks_, {});
  blockSize_ = std::exchange(other.blockSize_, 0);
  used_ = std::exchange(other.used_, 0);
  pages_ = std::exchange(other.pages_, {});
  size_ = std::exchange(other.size_, 0);
  longest_ = std::exchange(other.longest_, 0);
  return *this;
}

TextRows::Row& TextRows::NewRow() {
  if (size_ % kPage == 0) pages_.push_back(std::make_unique_for_overwrite<Row[]>(kPage));
  return At(size_++);
}

char* TextRows::Room(size_t bytes) {
  if (blocks_.empty() || blockSize_ - used_ < bytes) {
    blockSize_ = std::max(bytes, std::clamp(2 * blockSize_, kFirstBlock, kLargestBlock));
    blocks_.push_back(std::make_unique_for_overwrite<char[]>(blockSize_));
    used_ = 0;
  }
  return blocks_.back().get() + std::exchange(used_, used_ + bytes);
}

TextRows::Row TextRows::Written(std::initializer_list<QStringView> parts) {
  qsizetype count = 0;
  for (const QStringView part : parts) count += part.size();
  longest_ = std::max(longest_, static_cast<int>(count));
  char* const narrow = Room(static_cast<size_t>(count));
  char* to = narrow;
  unsigned seen = 0;
  for (const QStringView part : parts) {
    for (const QChar c : part) {
      seen |= c.unicode();
      *to++ = static_cast<char>(c.unicode());
    }
  }
  if (seen <= 0xFF) return {narrow, static_cast<int>(count), false};
  char* const wide = Room(static_cast<size_t>(count) * sizeof(char16_t));
  to = wide;
  for (const QStringView part : parts) {
    const size_t bytes = static_cast<size_t>(part.size()) * sizeof(char16_t);
    if (bytes != 0) std::memcpy(to, part.utf16(), bytes);
    to += bytes;
  }
  return {wide, static_cast<int>(count), true};
}

char* TextRows::AddNarrow(qsizetype count) {
  char* const text = Room(static_cast<size_t>(count));
  longest_ = std::max(longest_, static_cast<int>(count));
  NewRow() = {text, static_cast<int>(count), false};
  return text;
}

QString TextRows::operator[](qsizetype at) const {
  const Row& row = At(at);
  if (!row.wide) return QString::fromLatin1(row.text, row.size);
  QString text(row.size, Qt::Uninitialized);
  std::memcpy(text.data(), row.text, static_cast<size_t>(row.size) * sizeof(char16_t));
  return text;
}

TextRows& TextRows::operator+=(const QString& row) {
  Add({row});
  return *this;
}

TextRows& TextRows::operator+=(const QStringList& rows) {
  for (const QString& row : rows) Add({row});
  return *this;
}

QStringList TextRows::ToList() const {
  QStringList list;
  list.reserve(size());
  for (qsizetype i = 0; i < size(); ++i) list += (*this)[i];
  return list;
}

int ListRows::Longest() const {
  if (report_ != nullptr) return report_->Longest();
  qsizetype longest = 0;
  for (const QString& row : list_) longest = std::max(longest, row.size());
  return static_cast<int>(longest);
}

QString ListRows::Joined() const {
  qsizetype size = 0;
  for (int i = 0; i < Count(); ++i) size += SizeOf(i) + 2;
  QString text;
  text.reserve(size);
  for (int i = 0; i < Count(); ++i) text.append(At(i)).append(QLatin1String("\r\n"));
  return text;
}

const QStringList& ListRows::List() const {
  if (report_ != nullptr && list_.size() != report_->size()) list_ = report_->ToList();
  return list_;
}

QStringList& ListRows::Change() {
  List();
  report_.reset();
  return list_;
}

}  // namespace tamo
