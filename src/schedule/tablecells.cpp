#include "schedule/tablecells.h"

#include <algorithm>
#include <cmath>

namespace tamo {
namespace {

constexpr double kSameLine = 0.45;  // of the size: also raised and lowered letters

// Words of one cell in reading order: lines from the top down, each from left to right.
void InReadingOrder(std::vector<const PlacedWord*>& words) {
  std::sort(words.begin(), words.end(),
            [](const PlacedWord* a, const PlacedWord* b) { return a->word->base < b->word->base; });
  for (auto first = words.begin(); first != words.end();) {
    auto last = first + 1;
    while (last != words.end() &&
           (*last)->word->base - (*first)->word->base <= kSameLine * (*first)->word->size) {
      ++last;
    }
    std::sort(first, last, [](const PlacedWord* a, const PlacedWord* b) {
      return a->word->box.left < b->word->box.left;
    });
    first = last;
  }
}

ScheduleCell CellOf(std::vector<const PlacedWord*> words) {
  ScheduleCell cell;
  if (words.empty()) return cell;
  InReadingOrder(words);
  cell.box = NoBox();
  QStringList parts;
  for (const PlacedWord* placed : words) {
    const Word& word = *placed->word;
    parts.append(word.text);
    cell.box.Take({word.box.left, word.box.top});
    cell.box.Take({word.box.right, word.box.bottom});
    for (const Doubt doubt : placed->doubts) cell.Add(doubt);
    if (word.unknown) cell.Add(Doubt::UnknownLetter);
    if (word.way != Way::Right) cell.Add(Doubt::TurnedText);
  }
  cell.text = Normal(parts.join(u' '));
  return cell;
}

}  // namespace

QString Normal(const QString& text) {
  return text.simplified();
}

std::vector<ScheduleCell> CellsOf(const std::vector<PlacedWord>& words, int row, int columns) {
  std::vector<std::vector<const PlacedWord*>> held(static_cast<size_t>(columns));
  for (const PlacedWord& word : words) {
    if (word.row != row) continue;
    for (int column = word.first; column <= word.last && column < columns; ++column) {
      held[size_t(column)].push_back(&word);
    }
  }
  std::vector<ScheduleCell> cells;
  cells.reserve(held.size());
  for (std::vector<const PlacedWord*>& own : held) cells.push_back(CellOf(std::move(own)));
  return cells;
}

}  // namespace tamo
