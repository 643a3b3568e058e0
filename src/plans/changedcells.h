#pragma once

#include <vector>

#include "plans/comparedsheets.h"
#include "plans/overlayink.h"

namespace tamo {

// Where two sheets differ, gathered from pictures of their parts: a grid of small cells over the
// new sheet, and how much ink of each cell has gone and come.
class ChangedCells {
 public:
  // `pixelsPerPoint` of the pictures. A scan has noise: its faint ink does not count.
  ChangedCells(PageSize sheet, double pixelsPerPoint, bool scan);

  // A part whose upper left pixel is `left`, `top` of the whole sheet; `margin` pixels around were
  // painted to be looked at only.
  void Add(const Ink& old, const Ink& now, const OverlayMargin& margin, int left, int top);

  // The changed places, each around what lies near each other, from the top down and from left to
  // right; without words.
  std::vector<ChangedPlace> Places() const;

 private:
  struct Cell {
    int gone = 0;  // darkness of pixels, added up
    int come = 0;
    int left = 0;  // the pixels, when there are any
    int top = 0;
    int right = 0;
    int bottom = 0;
    bool Changed() const;
    void Take(int x, int y);
  };
  void Count(int gone, int come, int x, int y);
  int CellAt(int column, int row) const { return row * columns_ + column; }
  void TakeAround(int column, int row, PageBox& box) const;
  ChangedPlace PlaceFrom(size_t cell, std::vector<bool>& seen) const;

  double scale_;
  int floor_;
  double cell_;  // pixels
  int columns_;
  int rows_;
  std::vector<Cell> cells_;
};

// Places that lie on each other or nearly so, as one.
void JoinPlaces(std::vector<ChangedPlace>& places);
// Down the sheet in bands, each from left to right.
void SortPlaces(std::vector<ChangedPlace>& places);

}  // namespace tamo
