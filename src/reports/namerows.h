#pragma once

#include <QString>
#include <QStringView>
#include <cstring>
#include <utility>
#include <vector>

namespace tamo {

// Names in order of first appearance, each found at once by its exact, case-sensitive text. It owns
// its names; row numbers stay valid. A report asks for one name a line: BM_NameRows beside
// BM_PlainNames.
class NameRows {
 public:
  int Count() const { return static_cast<int>(names_.size()); }
  const QString& At(int row) const { return names_[static_cast<size_t>(row)]; }
  int Find(QStringView name) const {  // -1 when it is new
    if (slots_.empty()) return -1;
    const quint32 hash = Hash(name);
    for (size_t at = hash & (slots_.size() - 1);; at = (at + 1) & (slots_.size() - 1)) {
      const Slot& slot = slots_[at];
      if (slot.row < 0) return -1;
      if (slot.hash == hash && Is(At(slot.row), name)) return slot.row;
    }
  }
  int Add(QStringView name) {
    if (names_.size() * 2 >= slots_.size()) Grow();
    names_.push_back(name.toString());
    Put({Hash(name), Count() - 1});
    return Count() - 1;
  }

 private:
  struct Slot {
    quint32 hash = 0;
    int row = -1;  // none
  };

  static bool Is(const QString& own, QStringView name) {
    return own.size() == name.size() &&
           std::memcmp(own.constData(), name.data(), static_cast<size_t>(name.size()) * 2) == 0;
  }
  // Of four characters at a time.
  static quint32 Hash(QStringView name) {
    constexpr quint64 kMix = 0x9E3779B97F4A7C15;
    const char16_t* const text = name.utf16();
    const qsizetype size = name.size();
    quint64 hash = static_cast<quint64>(size);
    quint64 part = 0;
    for (qsizetype at = 0; at + 4 <= size; at += 4) {
      std::memcpy(&part, text + at, sizeof part);
      hash = (hash ^ part) * kMix;
      hash ^= hash >> 29;
    }
    if (size >= 4) {
      std::memcpy(&part, text + size - 4, sizeof part);
    } else {
      for (qsizetype at = 0; at < size; ++at) part = part << 16 | text[at];
    }
    return static_cast<quint32>((hash ^ part) * kMix >> 32);
  }
  void Put(const Slot& slot) {
    size_t at = slot.hash & (slots_.size() - 1);
    while (slots_[at].row >= 0) at = (at + 1) & (slots_.size() - 1);
    slots_[at] = slot;
  }
  void Grow() {
    const std::vector<Slot> before =
        std::exchange(slots_, std::vector<Slot>(slots_.empty() ? 64 : 2 * slots_.size()));
    for (const Slot& slot : before) {
      if (slot.row >= 0) Put(slot);
    }
  }

  std::vector<QString> names_;
  std::vector<Slot> slots_;  // a power of two, at least twice the names
};

}  // namespace tamo
