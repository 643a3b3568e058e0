#include "plans/linegrid.h"

#include <algorithm>
#include <cmath>

namespace tamo {
namespace {

constexpr int kMostCells = 400;   // across and down
constexpr double kSameWay = 0.1;  // sine of the angle between lines of one direction
constexpr double kShort = 1e-6;

double Length(const PageLine& line) {
  return Distance(line.from, line.to);
}

}  // namespace

LineGrid::LineGrid(std::vector<PageLine> lines) : lines_(std::move(lines)), box_(NoBox()) {
  std::erase_if(lines_, [](const PageLine& line) { return !(Length(line) > kShort); });
  for (const PageLine& line : lines_) {
    box_.Take(line.from);
    box_.Take(line.to);
  }
  if (lines_.empty()) box_ = {};
  cell_ = std::max({cell_, box_.Width() / kMostCells, box_.Height() / kMostCells});
  columns_ = static_cast<int>(box_.Width() / cell_) + 1;
  rows_ = static_cast<int>(box_.Height() / cell_) + 1;
  begins_.assign(size_t(columns_) * size_t(rows_) + 1, 0);
  for (const PageLine& line : lines_) CellsOf(line, [&](size_t cell) { ++begins_[cell + 1]; });
  for (size_t i = 1; i < begins_.size(); ++i) begins_[i] += begins_[i - 1];
  items_.resize(begins_.back());
  std::vector<uint32_t> next(begins_.begin(), begins_.end() - 1);
  for (uint32_t i = 0; i < lines_.size(); ++i)
    CellsOf(lines_[i], [&](size_t cell) { items_[next[cell]++] = i; });
}

int LineGrid::Column(double x) const {
  return std::clamp(static_cast<int>(std::floor((x - box_.left) / cell_)), 0, columns_ - 1);
}

int LineGrid::Row(double y) const {
  return std::clamp(static_cast<int>(std::floor((y - box_.top) / cell_)), 0, rows_ - 1);
}

// Row by row, the columns that the line passes there.
template <typename Visit>
void LineGrid::CellsOf(const PageLine& line, Visit visit) const {
  const int first = Row(std::min(line.from.y, line.to.y));
  const int last = Row(std::max(line.from.y, line.to.y));
  const double height = line.to.y - line.from.y;
  for (int row = first; row <= last; ++row) {
    double ends[2] = {line.from.x, line.to.x};
    if (first != last) {
      for (int side = 0; side < 2; ++side) {
        const double y = box_.top + (row + side) * cell_;
        const double part = std::clamp((y - line.from.y) / height, 0.0, 1.0);
        ends[side] = line.from.x + part * (line.to.x - line.from.x);
      }
    }
    const int right = Column(std::max(ends[0], ends[1]));
    for (int column = Column(std::min(ends[0], ends[1])); column <= right; ++column)
      visit(size_t(row) * size_t(columns_) + size_t(column));
  }
}

std::optional<PagePoint> LineGrid::Nearest(PagePoint at, double dx, double dy, double reach) const {
  std::optional<PagePoint> nearest;
  if (at.x < box_.left - reach || at.x > box_.right + reach || at.y < box_.top - reach ||
      at.y > box_.bottom + reach)
    return nearest;
  for (int row = Row(at.y - reach); row <= Row(at.y + reach); ++row) {
    for (int column = Column(at.x - reach); column <= Column(at.x + reach); ++column) {
      const size_t cell = size_t(row) * size_t(columns_) + size_t(column);
      for (uint32_t item = begins_[cell]; item < begins_[cell + 1]; ++item) {
        const PageLine& line = lines_[items_[item]];
        const double length = Length(line);
        const double wayX = (line.to.x - line.from.x) / length;
        const double wayY = (line.to.y - line.from.y) / length;
        if (std::abs(wayX * dy - wayY * dx) > kSameWay) continue;
        const double along =
            std::clamp((at.x - line.from.x) * wayX + (at.y - line.from.y) * wayY, 0.0, length);
        const PagePoint foot = {line.from.x + along * wayX, line.from.y + along * wayY};
        const double away = Distance(foot, at);
        if (away > reach) continue;
        reach = away;
        nearest = foot;
      }
    }
  }
  return nearest;
}

std::vector<LineSample> SamplesOf(const std::vector<PageLine>& lines, int most) {
  double whole = 0;
  for (const PageLine& line : lines) whole += Length(line);
  std::vector<LineSample> samples;
  const double step = whole / most;
  double next = step / 2;
  double before = 0;
  for (const PageLine& line : lines) {
    const double length = Length(line);
    for (; step > 0 && next < before + length; next += step) {
      const double part = (next - before) / length;
      samples.push_back({{line.from.x + part * (line.to.x - line.from.x),
                          line.from.y + part * (line.to.y - line.from.y)},
                         (line.to.x - line.from.x) / length,
                         (line.to.y - line.from.y) / length});
    }
    before += length;
  }
  return samples;
}

}  // namespace tamo
