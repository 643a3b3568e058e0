#include "player/difftext.h"

#include <algorithm>
#include <vector>

namespace tamo::player {
namespace {

constexpr qsizetype kMostCells = 4'000'000;  // beyond, the middle is shown as one block
constexpr qsizetype kContext = 2;

struct Entry {
  char sign;
  QString line;
};

void AddBlock(std::vector<Entry>& entries, char sign, const QStringList& lines, qsizetype from,
              qsizetype to) {
  for (qsizetype i = from; i < to; ++i) entries.push_back({sign, lines[i]});
}

// The middle parts a[from..aEnd) and b[from..bEnd) along their longest common sequence.
void AddMiddle(std::vector<Entry>& entries, const QStringList& a, const QStringList& b,
               qsizetype from, qsizetype aEnd, qsizetype bEnd) {
  const qsizetype rows = aEnd - from;
  const qsizetype columns = bEnd - from;
  if (rows * columns > kMostCells) {
    AddBlock(entries, '-', a, from, aEnd);
    AddBlock(entries, '+', b, from, bEnd);
    return;
  }
  const auto width = static_cast<size_t>(columns + 1);
  std::vector<int> length(static_cast<size_t>(rows + 1) * width, 0);
  const auto cell = [&](qsizetype i, qsizetype j) -> int& {
    return length[static_cast<size_t>(i) * width + static_cast<size_t>(j)];
  };
  for (qsizetype i = rows - 1; i >= 0; --i) {
    for (qsizetype j = columns - 1; j >= 0; --j) {
      cell(i, j) = a[from + i] == b[from + j] ? cell(i + 1, j + 1) + 1
                                              : std::max(cell(i + 1, j), cell(i, j + 1));
    }
  }
  qsizetype i = 0;
  qsizetype j = 0;
  while (i < rows || j < columns) {
    if (i < rows && j < columns && a[from + i] == b[from + j]) {
      entries.push_back({' ', a[from + i]});
      ++i;
      ++j;
    } else if (j == columns || (i < rows && cell(i + 1, j) >= cell(i, j + 1))) {
      entries.push_back({'-', a[from + i++]});
    } else {
      entries.push_back({'+', b[from + j++]});
    }
  }
}

bool NearChange(const std::vector<Entry>& entries, qsizetype at) {
  const auto size = static_cast<qsizetype>(entries.size());
  const qsizetype first = std::max<qsizetype>(0, at - kContext);
  const qsizetype last = std::min(size - 1, at + kContext);
  for (qsizetype i = first; i <= last; ++i) {
    if (entries[static_cast<size_t>(i)].sign != ' ') return true;
  }
  return false;
}

}  // namespace

QString ShortDiff(const QStringList& expected, const QStringList& found, int most) {
  qsizetype same = 0;
  const qsizetype shorter = std::min(expected.size(), found.size());
  while (same < shorter && expected[same] == found[same]) ++same;
  qsizetype tail = 0;
  while (tail < shorter - same &&
         expected[expected.size() - 1 - tail] == found[found.size() - 1 - tail])
    ++tail;
  std::vector<Entry> entries;
  AddBlock(entries, ' ', expected, 0, same);
  AddMiddle(entries, expected, found, same, expected.size() - tail, found.size() - tail);
  AddBlock(entries, ' ', expected, expected.size() - tail, expected.size());

  QString text;
  int written = 0;
  bool gap = false;
  for (qsizetype i = 0; i < static_cast<qsizetype>(entries.size()); ++i) {
    const Entry& entry = entries[static_cast<size_t>(i)];
    if (!NearChange(entries, i)) {
      gap = true;
      continue;
    }
    if (gap) text += QStringLiteral("    ...\n");
    gap = false;
    if (++written > most) {
      text += QStringLiteral("    (and more)\n");
      break;
    }
    text += QStringLiteral("  %1 |%2|\n").arg(QLatin1Char(entry.sign)).arg(entry.line);
  }
  return text;
}

}  // namespace tamo::player
