#include "common/textrows.h"

#include <algorithm>
#include <bit>
#include <cstring>
#include <utility>

#include "common/giveback.h"

namespace tamo {
namespace {

constexpr size_t kFirstBlock = size_t(1) << 12;  // bytes
constexpr size_t kLargestBlock = size_t(1) << 24;
constexpr size_t kDoublings = 12;  // from the one to the other

// The block of the element `at` and its place in it, of elements of which a first block holds
// `first`.
struct Spot {
  size_t block;
  size_t place;
};
Spot SpotOf(size_t at, size_t first) {
  const size_t n = at / first + 1;
  const size_t largest = first << kDoublings;
  if (n < (size_t(1) << kDoublings)) {
    const auto block = static_cast<size_t>(std::bit_width(n)) - 1;
    return {block, at - ((size_t(1) << block) - 1) * first};
  }
  const size_t rest = at - ((size_t(1) << kDoublings) - 1) * first;
  return {kDoublings + rest / largest, rest % largest};
}

bool IsNarrow(QStringView text) {
  unsigned seen = 0;
  for (const QChar c : text) seen |= c.unicode();
  return seen <= 0xFF;
}

}  // namespace

TextRows::TextRows(std::initializer_list<QString> rows) {
  for (const QString& row : rows) Add({row});
}

TextRows::TextRows(const QStringList& rows) {
  *this += rows;
}

TextRows::TextRows(std::shared_ptr<const RowMaker> maker)
    : size_(maker->Count()), longest_(maker->Longest()), maker_(std::move(maker)) {}

TextRows::~TextRows() {
  // Small blocks are kept for the next report, only those of their own go back to the system.
  if (blocks_.size() <= kDoublings) return;
  GiveBackAside(std::move(blocks_));
  GiveBackAside(std::move(rows_));
}

TextRows::TextRows(TextRows&& other) noexcept {
  Swap(other);
}

TextRows& TextRows::operator=(TextRows&& other) noexcept {
  TextRows taken(std::move(other));
  Swap(taken);
  return *this;
}

void TextRows::Swap(TextRows& other) noexcept {
  std::swap(blocks_, other.blocks_);
  std::swap(blockBegin_, other.blockBegin_);
  std::swap(blockNext_, other.blockNext_);
  std::swap(blockEnd_, other.blockEnd_);
  std::swap(filled_, other.filled_);
  std::swap(rows_, other.rows_);
  std::swap(rowNext_, other.rowNext_);
  std::swap(rowEnd_, other.rowEnd_);
  std::swap(size_, other.size_);
  std::swap(longest_, other.longest_);
  std::swap(maker_, other.maker_);
}

size_t TextRows::Bytes() const {
  if (maker_ != nullptr) return maker_->Bytes();
  return filled_ + static_cast<size_t>(blockNext_ - blockBegin_) +
         static_cast<size_t>(size_) * sizeof(Row);
}

TextRows::Row& TextRows::At(qsizetype at) {
  const Spot spot = SpotOf(static_cast<size_t>(at), kFirstBlock / sizeof(Row));
  return rows_[spot.block][spot.place];
}

void TextRows::AddRows() {
  const size_t count = (kFirstBlock << std::min(rows_.size(), kDoublings)) / sizeof(Row);
  rows_.push_back(std::make_unique_for_overwrite<Row[]>(count));
  rowNext_ = rows_.back().get();
  rowEnd_ = rowNext_ + count;
}

void TextRows::AddBlock(size_t bytes) {
  filled_ += static_cast<size_t>(blockNext_ - blockBegin_);
  const size_t size = std::max(bytes, kFirstBlock << std::min(blocks_.size(), kDoublings));
  blocks_.push_back(std::make_unique_for_overwrite<char[]>(size));
  blockBegin_ = blockNext_ = blocks_.back().get();
  blockEnd_ = blockBegin_ + size;
}

char* TextRows::PlaceLong(qsizetype count, bool wide, Row& row) {
  longest_ = std::max(longest_, static_cast<int>(count));
  AddBlock(sizeof count + (static_cast<size_t>(count) << (wide ? 1 : 0)));
  std::memcpy(blockBegin_, &count, sizeof count);
  row = RowOf(blockBegin_ + sizeof count, kLongRow, wide);
  char* const text = blockBegin_ + sizeof count;
  blockNext_ = blockEnd_;
  return text;
}

TextRows::Text TextRows::Read(qsizetype at) const {
  const Spot spot = SpotOf(static_cast<size_t>(at), kFirstBlock / sizeof(Row));
  const Row row = rows_[spot.block][spot.place];
  const auto size = static_cast<qsizetype>(row >> 1 & kLongRow);
  if (size == 0) return {"", 0, false};  // an empty row has no place, it may come before any block
  const char* const block = blocks_[row >> (1 + kSizeBits + kPlaceBits)].get();
  Text text{block + (row >> (1 + kSizeBits) & ((Row(1) << kPlaceBits) - 1)), size, (row & 1) != 0};
  if (text.size == kLongRow) std::memcpy(&text.size, block, sizeof text.size);
  return text;
}

TextRows::Row TextRows::Written(std::initializer_list<QStringView> parts) {
  qsizetype count = 0;
  bool wide = false;
  for (const QStringView part : parts) {
    count += part.size();
    wide = wide || !IsNarrow(part);
  }
  Row row = 0;
  char* to = Place(count, wide, row);
  for (const QStringView part : parts) {
    if (!wide) {
      for (const QChar c : part) *to++ = static_cast<char>(c.unicode());
    } else if (!part.isEmpty()) {
      const size_t bytes = static_cast<size_t>(part.size()) * sizeof(char16_t);
      std::memcpy(to, part.utf16(), bytes);
      to += bytes;
    }
  }
  return row;
}

QString TextRows::operator[](qsizetype at) const {
  if (maker_ != nullptr) return maker_->Row(at);
  const Text row = Read(at);
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

QStringList& ListRows::Change() {
  if (report_ != nullptr) {
    list_ = report_->ToList();
    report_.reset();
  }
  return list_;
}

}  // namespace tamo
