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

constexpr int kSizeBits = 23;
constexpr int kPlaceBits = 24;
constexpr qsizetype kLongRow = (qsizetype(1) << kSizeBits) - 1;

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
  std::swap(blockSize_, other.blockSize_);
  std::swap(used_, other.used_);
  std::swap(filled_, other.filled_);
  std::swap(rows_, other.rows_);
  std::swap(size_, other.size_);
  std::swap(longest_, other.longest_);
}

size_t TextRows::Bytes() const {
  return filled_ + used_ + static_cast<size_t>(size_) * sizeof(Row);
}

TextRows::Row& TextRows::At(qsizetype at) {
  const Spot spot = SpotOf(static_cast<size_t>(at), kFirstBlock / sizeof(Row));
  return rows_[spot.block][spot.place];
}

TextRows::Row& TextRows::NewRow() {
  const Spot spot = SpotOf(static_cast<size_t>(size_++), kFirstBlock / sizeof(Row));
  if (spot.block == rows_.size()) {
    const size_t bytes = kFirstBlock << std::min(spot.block, kDoublings);
    rows_.push_back(std::make_unique_for_overwrite<Row[]>(bytes / sizeof(Row)));
  }
  return rows_[spot.block][spot.place];
}

char* TextRows::Room(size_t bytes) {
  if (blocks_.empty() || blockSize_ - used_ < bytes) {
    filled_ += used_;
    blockSize_ = std::max(bytes, kFirstBlock << std::min(blocks_.size(), kDoublings));
    blocks_.push_back(std::make_unique_for_overwrite<char[]>(blockSize_));
    used_ = 0;
  }
  return blocks_.back().get() + std::exchange(used_, used_ + bytes);
}

// The place of a text of `count` characters; `row` tells it.
char* TextRows::Place(qsizetype count, bool wide, Row& row) {
  const size_t bytes = static_cast<size_t>(count) * (wide ? sizeof(char16_t) : 1);
  longest_ = std::max(longest_, static_cast<int>(count));
  char* text = nullptr;
  if (count < kLongRow) {
    text = Room(bytes);
  } else {
    used_ = blockSize_;  // nothing stands before it in its block
    text = Room(sizeof count + bytes);
    std::memcpy(text, &count, sizeof count);
    text += sizeof count;
  }
  const auto place = static_cast<Row>(text - blocks_.back().get());
  row = ((((blocks_.size() - 1) << kPlaceBits | place) << kSizeBits |
          static_cast<Row>(std::min(count, kLongRow)))
         << 1) |
        (wide ? 1U : 0U);
  return text;
}

TextRows::Text TextRows::Read(qsizetype at) const {
  const Spot spot = SpotOf(static_cast<size_t>(at), kFirstBlock / sizeof(Row));
  const Row row = rows_[spot.block][spot.place];
  const char* const block = blocks_[row >> (1 + kSizeBits + kPlaceBits)].get();
  Text text{block + (row >> (1 + kSizeBits) & ((Row(1) << kPlaceBits) - 1)),
            static_cast<qsizetype>(row >> 1 & kLongRow), (row & 1) != 0};
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

char* TextRows::AddNarrow(qsizetype count) {
  Row row = 0;
  char* const text = Place(count, false, row);
  NewRow() = row;
  return text;
}

QString TextRows::operator[](qsizetype at) const {
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
