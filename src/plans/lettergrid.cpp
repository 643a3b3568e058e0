#include "plans/lettergrid.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <iterator>

namespace tamo {
namespace {

constexpr double kCell = 12;          // points
constexpr double kSamePlace = 0.3;    // of the letters' size
constexpr double kLeastReach = 0.75;  // points
constexpr double kMostReach = 12;
constexpr int kMostCells = 4000;  // across: whatever a file says

int CellOf(double place) {
  return static_cast<int>(
      std::clamp(std::floor(place / kCell), -1.0 * kMostCells, 1.0 * kMostCells));
}

uint64_t Key(int column, int row) {
  return uint64_t(uint32_t(column)) << 32 | uint32_t(row);
}

}  // namespace

std::vector<SeenLetter> LettersOf(const PageContent& content, const SheetFit& fit) {
  std::vector<SeenLetter> letters;
  for (const TextPiece& piece : content.texts) {
    if (piece.hidden || piece.clipped) continue;
    for (size_t i = 0; i < piece.places.size(); ++i) {
      const QChar letter = piece.text.at(qsizetype(i));
      if (letter.isSpace()) continue;
      const PageBox& box = piece.places[i].box;
      const PagePoint middle = box.Middle();
      letters.push_back({letter.unicode(), fit.To(middle), piece.size * fit.Size()});
    }
  }
  return letters;
}

void LetterGrid::Add(const SeenLetter& letter) {
  cells_[Key(CellOf(letter.at.x), CellOf(letter.at.y))].push_back(letter);
}

template <typename Visit>
bool LetterGrid::AnyAround(const PageBox& box, Visit visit) const {
  const int64_t rows = int64_t{1} + CellOf(box.bottom) - CellOf(box.top);
  const int64_t columns = int64_t{1} + CellOf(box.right) - CellOf(box.left);
  // A line of letters as large as the sheet: those that are there are fewer than its cells.
  if (box.right >= box.left && box.bottom >= box.top && rows * columns > std::ssize(cells_)) {
    return std::any_of(cells_.begin(), cells_.end(), [&](const auto& cell) {
      return std::any_of(cell.second.begin(), cell.second.end(), visit);
    });
  }
  for (int row = CellOf(box.top); row <= CellOf(box.bottom); ++row) {
    for (int column = CellOf(box.left); column <= CellOf(box.right); ++column) {
      const auto cell = cells_.find(Key(column, row));
      if (cell != cells_.end() && std::any_of(cell->second.begin(), cell->second.end(), visit))
        return true;
    }
  }
  return false;
}

bool LetterGrid::Has(const SeenLetter& letter) const {
  const double reach = std::clamp(kSamePlace * letter.size, kLeastReach, kMostReach);
  const PagePoint at = letter.at;
  return AnyAround({at.x - reach, at.y - reach, at.x + reach, at.y + reach},
                   [&](const SeenLetter& other) {
                     return other.letter == letter.letter && Distance(other.at, at) <= reach;
                   });
}

bool LetterGrid::AnyIn(const PageBox& box) const {
  return AnyAround(box, [&](const SeenLetter& letter) {
    return letter.at.x >= box.left && letter.at.x <= box.right && letter.at.y >= box.top &&
           letter.at.y <= box.bottom;
  });
}

}  // namespace tamo
