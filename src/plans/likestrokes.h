#pragma once

#include <cmath>
#include <cstdint>
#include <span>
#include <vector>

#include "plans/snapindex.h"

namespace tamo {

// A straight line or a whole curve of the drawing.
struct LikeStroke {
  PagePoint from;
  PagePoint to;
  PagePoint middle;   // half of the way along it
  double length = 0;  // of the way along it, points
  bool curved = false;
  uint32_t first = 0;  // its lines in the sheet's index, which follow each other
  uint32_t count = 1;
};

inline PagePoint ChordMiddle(const LikeStroke& stroke) {
  return {(stroke.from.x + stroke.to.x) / 2, (stroke.from.y + stroke.to.y) / 2};
}

std::vector<LikeStroke> StrokesOf(const SnapIndex& lines);

// The strokes of a sheet by their length and by their place. Made on any thread, then only read.
class StrokeIndex {
 public:
  explicit StrokeIndex(const SnapIndex& lines);

  const std::vector<LikeStroke>& Strokes() const { return strokes_; }
  uint32_t StrokeOfLine(uint32_t line) const { return ofLine_[line]; }
  // Numbers of those that are so long, give or take `off`.
  std::span<const uint32_t> OfLength(double length, double off) const;
  // Those whose chord has its middle at most `reach` points beside and above or below a place;
  // false from `visit` ends it.
  template <typename Visit>
  void Near(PagePoint at, double reach, Visit visit) const {
    const int last = Row(at.y + reach);
    const int right = Column(at.x + reach);
    for (int row = Row(at.y - reach); row <= last; ++row) {
      for (int column = Column(at.x - reach); column <= right; ++column) {
        const size_t cell = Cell(column, row);
        for (uint32_t i = begins_[cell]; i < begins_[cell + 1]; ++i) {
          const PagePoint chord = ChordMiddle(strokes_[items_[i]]);
          if (std::abs(chord.x - at.x) > reach || std::abs(chord.y - at.y) > reach) continue;
          if (!visit(items_[i])) return;
        }
      }
    }
  }

 private:
  int Column(double x) const;
  int Row(double y) const;
  size_t Cell(int column, int row) const {
    return static_cast<size_t>(row) * static_cast<size_t>(columns_) + static_cast<size_t>(column);
  }
  size_t CellOf(const LikeStroke& stroke) const;
  void FillCells();

  std::vector<LikeStroke> strokes_;
  std::vector<uint32_t> ofLine_;
  std::vector<uint32_t> byLength_;
  PageBox box_;
  double cell_ = 1;  // points
  int columns_ = 1;
  int rows_ = 1;
  std::vector<uint32_t> begins_;
  std::vector<uint32_t> items_;
};

}  // namespace tamo
