#include "plans/changedcells.h"

#include <algorithm>
#include <cmath>
#include <deque>

namespace tamo {
namespace {

constexpr double kCell = 6;         // points
constexpr int kApart = 3;           // cells between places that are two
constexpr int kLeastChange = 300;   // darkness of a cell that is no accident: a pixel and a bit
constexpr int kRim = 60;            // and of one at the rim of a change
constexpr int kFaint = 16;          // ink of a drawing that counts
constexpr int kNoise = 70;          // of a scan
constexpr double kBand = 72;        // points
constexpr double kOneSided = 0.05;  // of the other kind of ink, in a place of one kind

void AddWords(QString& words, const QString& more) {
  if (!words.isEmpty() && !more.isEmpty()) words += QStringLiteral("; ");
  words += more;
}

// Ink that the other sheet has not a good part of near by: an edge that falls between two pixels
// is half as dark on both.
int Missing(int ink, int near, int floor) {
  return std::max(0, ink - near * 5 / 2 - floor);
}

}  // namespace

bool ChangedCells::Cell::Changed() const {
  return gone + come >= kLeastChange;
}

void ChangedCells::Cell::Take(int x, int y) {
  if (gone + come == 0) {
    left = right = x;
    top = bottom = y;
    return;
  }
  left = std::min(left, x);
  right = std::max(right, x);
  top = std::min(top, y);
  bottom = std::max(bottom, y);
}

ChangedCells::ChangedCells(PageSize sheet, double pixelsPerPoint, bool scan)
    : scale_(pixelsPerPoint),
      floor_(scan ? kNoise : kFaint),
      cell_(std::max(4.0, kCell * pixelsPerPoint)),
      columns_(static_cast<int>(sheet.width * pixelsPerPoint / cell_) + 1),
      rows_(static_cast<int>(sheet.height * pixelsPerPoint / cell_) + 1),
      cells_(size_t(columns_) * size_t(rows_)) {}

void ChangedCells::Count(int gone, int come, int x, int y) {
  const int column = std::clamp(static_cast<int>(x / cell_), 0, columns_ - 1);
  const int row = std::clamp(static_cast<int>(y / cell_), 0, rows_ - 1);
  Cell& cell = cells_[size_t(CellAt(column, row))];
  cell.Take(x, y);
  cell.gone += gone;
  cell.come += come;
}

void ChangedCells::Add(const Ink& old, const Ink& now, const OverlayMargin& margin, int left,
                       int top) {
  const Ink nearOld = Spread(old, kOverlayReach);
  const Ink nearNow = Spread(now, kOverlayReach);
  for (int y = margin.top; y < now.height - margin.bottom; ++y) {
    const uint8_t* const rows[] = {old.Row(y), now.Row(y), nearOld.Row(y), nearNow.Row(y)};
    for (int x = margin.left; x < now.width - margin.right; ++x) {
      const int gone = Missing(rows[0][x], rows[3][x], floor_);
      const int come = Missing(rows[1][x], rows[2][x], floor_);
      if (gone + come > 0) Count(gone, come, left + x - margin.left, top + y - margin.top);
    }
  }
}

// The pixels of a changed cell, and of those beside it that a change only reaches into.
void ChangedCells::TakeAround(int column, int row, PageBox& box) const {
  for (int y = std::max(0, row - 1); y <= std::min(rows_ - 1, row + 1); ++y) {
    for (int x = std::max(0, column - 1); x <= std::min(columns_ - 1, column + 1); ++x) {
      const Cell& cell = cells_[size_t(CellAt(x, y))];
      if (cell.gone + cell.come < kRim) continue;
      box.Take({cell.left / scale_, cell.top / scale_});
      box.Take({(cell.right + 1) / scale_, (cell.bottom + 1) / scale_});
    }
  }
}

// All changed cells that are near each other, from one of them on.
ChangedPlace ChangedCells::PlaceFrom(size_t first, std::vector<bool>& seen) const {
  ChangedPlace place;
  place.box = NoBox();
  double gone = 0;
  double come = 0;
  std::deque<size_t> next = {first};
  seen[first] = true;
  while (!next.empty()) {
    const int at = static_cast<int>(next.front());
    next.pop_front();
    const int column = at % columns_;
    const int row = at / columns_;
    TakeAround(column, row, place.box);
    gone += cells_[size_t(at)].gone;
    come += cells_[size_t(at)].come;
    for (int y = std::max(0, row - kApart); y <= std::min(rows_ - 1, row + kApart); ++y) {
      for (int x = std::max(0, column - kApart); x <= std::min(columns_ - 1, column + kApart);
           ++x) {
        const auto near = size_t(CellAt(x, y));
        if (seen[near] || !cells_[near].Changed()) continue;
        seen[near] = true;
        next.push_back(near);
      }
    }
  }
  if (come <= kOneSided * gone) place.kind = ChangedPlace::Kind::Gone;
  if (gone <= kOneSided * come) place.kind = ChangedPlace::Kind::Come;
  return place;
}

std::vector<ChangedPlace> ChangedCells::Places() const {
  std::vector<ChangedPlace> places;
  std::vector<bool> seen(cells_.size(), false);
  for (size_t i = 0; i < cells_.size(); ++i) {
    if (!seen[i] && cells_[i].Changed()) places.push_back(PlaceFrom(i, seen));
  }
  JoinPlaces(places);
  SortPlaces(places);
  return places;
}

void JoinPlaces(std::vector<ChangedPlace>& places) {
  for (size_t i = 0; i < places.size(); ++i) {
    for (size_t j = i + 1; j < places.size();) {
      if (places[i].box.Cut(places[j].box).Empty()) {
        ++j;
        continue;
      }
      ChangedPlace& kept = places[i];
      kept.box.Take({places[j].box.left, places[j].box.top});
      kept.box.Take({places[j].box.right, places[j].box.bottom});
      if (kept.kind != places[j].kind) kept.kind = ChangedPlace::Kind::Changed;
      AddWords(kept.words, places[j].words);
      AddWords(kept.back, places[j].back);
      places.erase(places.begin() + std::ptrdiff_t(j));
      j = i + 1;  // the larger one may reach others
    }
  }
}

void SortPlaces(std::vector<ChangedPlace>& places) {
  std::stable_sort(places.begin(), places.end(), [](const ChangedPlace& a, const ChangedPlace& b) {
    const double bandA = std::floor(a.box.top / kBand);
    const double bandB = std::floor(b.box.top / kBand);
    return bandA != bandB ? bandA < bandB : a.box.left < b.box.left;
  });
}

}  // namespace tamo
