#pragma once

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <span>
#include <utility>
#include <vector>

#include "plans/pagecontent.h"

namespace tamo {

// How fine a grid is laid.
struct LineCellSize {
  double smallest = 4;         // points, the side of a cell
  int mostAcross = 4096;       // cells across, and down
  double mostCells = 1 << 18;  // in all
};

// Which of very many lines run through which cell of a grid that is laid over all of them. Made
// once, then only read. Places in points; those outside belong to the cells at the edge.
class LineCells {
 public:
  // `lineOf(line)` is the PageLine of an entry of `lines`.
  template <typename Line, typename LineOf>
  LineCells(const std::vector<Line>& lines, LineOf lineOf, const LineCellSize& size);

  const PageBox& Around() const { return box_; }  // all lines
  int Column(double x) const { return Bound((x - box_.left) / cell_, columns_); }
  int Row(double y) const { return Bound((y - box_.top) / cell_, rows_); }
  // The numbers of the lines, in their order.
  std::span<const uint32_t> In(int column, int row) const {
    const size_t cell = CellAt(column, row);
    return {items_.data() + begins_[cell], begins_[cell + 1] - begins_[cell]};
  }

 private:
  static int Bound(double at, int count) { return std::clamp(static_cast<int>(at), 0, count - 1); }
  size_t CellAt(int column, int row) const {
    return static_cast<size_t>(row) * static_cast<size_t>(columns_) + static_cast<size_t>(column);
  }
  void Lay(const LineCellSize& size);
  template <typename Visit>
  void CellsOf(const PageLine& line, Visit visit) const;

  PageBox box_ = NoBox();
  double cell_ = 1;  // points
  int columns_ = 1;
  int rows_ = 1;
  std::vector<uint32_t> begins_;  // of each cell in items_, and the end
  std::vector<uint32_t> items_;   // numbers of lines
};

template <typename Line, typename LineOf>
LineCells::LineCells(const std::vector<Line>& lines, LineOf lineOf, const LineCellSize& size) {
  for (const Line& line : lines) {
    box_.Take(lineOf(line).from);
    box_.Take(lineOf(line).to);
  }
  if (lines.empty()) box_ = {0, 0, 1, 1};
  Lay(size);
  for (const Line& line : lines)
    CellsOf(lineOf(line), [this](size_t cell) { ++begins_[cell + 1]; });
  for (size_t i = 1; i < begins_.size(); ++i) begins_[i] += begins_[i - 1];
  items_.resize(begins_.back());
  std::vector<uint32_t> next(begins_.begin(), begins_.end() - 1);
  for (size_t i = 0; i < lines.size(); ++i) {
    CellsOf(lineOf(lines[i]),
            [&](size_t cell) { items_[next[cell]++] = static_cast<uint32_t>(i); });
  }
}

// The cells that a line runs through, column by column.
template <typename Visit>
void LineCells::CellsOf(const PageLine& line, Visit visit) const {
  const bool rightwards = line.from.x <= line.to.x;
  const PagePoint a = rightwards ? line.from : line.to;
  const PagePoint b = rightwards ? line.to : line.from;
  const double slope = b.x > a.x ? (b.y - a.y) / (b.x - a.x) : 0;
  const int first = Column(a.x);
  const int last = Column(b.x);
  for (int column = first; column <= last; ++column) {
    const double left = box_.left + column * cell_;
    double y1 = column == first ? a.y : a.y + (left - a.x) * slope;
    double y2 = column == last ? b.y : a.y + (left + cell_ - a.x) * slope;
    if (y1 > y2) std::swap(y1, y2);
    for (int row = Row(y1); row <= Row(y2); ++row) visit(CellAt(column, row));
  }
}

}  // namespace tamo
