#pragma once

#include <QStringView>
#include <array>
#include <cstring>
#include <vector>

namespace tamo {

// Numbers of systems by the first 20 columns of their takeoff lines, as they stand there: of the
// lines of a large bid nearly all name a system that was named before in the very same columns. A
// line may be forgotten again; then its name has to be looked for.
class LineSystems {
 public:
  // -1: not known.
  int Find(QStringView line) const {
    if (line.size() < kColumns) return -1;
    const Columns columns = ColumnsOf(line);
    const Entry& entry = entries_[Place(columns)];
    return entry.columns == columns ? entry.number : -1;
  }
  void Keep(QStringView line, int number) {
    if (line.size() < kColumns) return;
    const Columns columns = ColumnsOf(line);
    entries_[Place(columns)] = {columns, number};
  }

 private:
  static constexpr qsizetype kColumns = 20;
  static constexpr size_t kPlaces = 512;
  using Columns = std::array<quint64, kColumns * sizeof(char16_t) / sizeof(quint64)>;
  struct Entry {
    Columns columns{};
    int number = -1;
  };

  static Columns ColumnsOf(QStringView line) {
    Columns columns;
    std::memcpy(columns.data(), line.utf16(), sizeof columns);
    return columns;
  }
  static size_t Place(const Columns& columns) {
    constexpr quint64 kMix = 0x9E3779B97F4A7C15;
    quint64 sum = 0;
    for (const quint64 four : columns) sum = (sum ^ four) * kMix;
    return sum >> 55;
  }

  std::vector<Entry> entries_ = std::vector<Entry>(kPlaces);
};

}  // namespace tamo
