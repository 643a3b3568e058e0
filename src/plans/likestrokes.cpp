#include "plans/likestrokes.h"

#include <algorithm>
#include <cmath>

namespace tamo {
namespace {

constexpr int kMostCells = 1 << 18;
constexpr double kSmallestCell = 4;  // points

// Half of the way along the lines of a stroke.
PagePoint MiddleOf(const std::vector<SnapLine>& lines, const LikeStroke& stroke) {
  double left = stroke.length / 2;
  for (uint32_t i = stroke.first; i < stroke.first + stroke.count; ++i) {
    const PageLine& line = lines[i].line;
    const double length = Distance(line.from, line.to);
    if (left <= length && length > 0) {
      const double part = left / length;
      return {line.from.x + part * (line.to.x - line.from.x),
              line.from.y + part * (line.to.y - line.from.y)};
    }
    left -= length;
  }
  return stroke.to;
}

}  // namespace

std::vector<LikeStroke> StrokesOf(const SnapIndex& index) {
  const std::vector<SnapLine>& lines = index.All();
  std::vector<LikeStroke> strokes;
  strokes.reserve(lines.size());
  for (uint32_t i = 0; i < lines.size(); ++i) {
    const SnapLine& line = lines[i];
    const bool goesOn = line.curve != 0 && i > 0 && lines[i - 1].curve == line.curve &&
                        Distance(lines[i - 1].line.to, line.line.from) < 1e-6;
    if (!goesOn) strokes.push_back({line.line.from, {}, {}, 0, line.curve != 0, i, 0});
    LikeStroke& stroke = strokes.back();
    stroke.to = line.line.to;
    stroke.length += Distance(line.line.from, line.line.to);
    ++stroke.count;
  }
  for (LikeStroke& stroke : strokes) stroke.middle = MiddleOf(lines, stroke);
  return strokes;
}

StrokeIndex::StrokeIndex(const SnapIndex& lines) : strokes_(StrokesOf(lines)), box_(NoBox()) {
  ofLine_.resize(lines.Lines());
  byLength_.resize(strokes_.size());
  for (uint32_t i = 0; i < strokes_.size(); ++i) {
    const LikeStroke& stroke = strokes_[i];
    byLength_[i] = i;
    box_.Take(ChordMiddle(stroke));
    for (uint32_t line = stroke.first; line < stroke.first + stroke.count; ++line)
      ofLine_[line] = i;
  }
  std::sort(byLength_.begin(), byLength_.end(), [this](uint32_t a, uint32_t b) {
    return strokes_[a].length != strokes_[b].length ? strokes_[a].length < strokes_[b].length
                                                    : a < b;
  });
  if (strokes_.empty()) box_ = {0, 0, 1, 1};
  FillCells();
}

int StrokeIndex::Column(double x) const {
  return std::clamp(static_cast<int>((x - box_.left) / cell_), 0, columns_ - 1);
}

int StrokeIndex::Row(double y) const {
  return std::clamp(static_cast<int>((y - box_.top) / cell_), 0, rows_ - 1);
}

size_t StrokeIndex::CellOf(const LikeStroke& stroke) const {
  const PagePoint at = ChordMiddle(stroke);
  return Cell(Column(at.x), Row(at.y));
}

void StrokeIndex::FillCells() {
  const double size = std::max(1.0, box_.Width()) * std::max(1.0, box_.Height());
  cell_ = std::max(
      {kSmallestCell, std::sqrt(size / kMostCells), box_.Width() / 4096, box_.Height() / 4096});
  columns_ = static_cast<int>(box_.Width() / cell_) + 1;
  rows_ = static_cast<int>(box_.Height() / cell_) + 1;
  begins_.assign(Cell(0, rows_) + 1, 0);
  for (const LikeStroke& stroke : strokes_) ++begins_[CellOf(stroke) + 1];
  for (size_t i = 1; i < begins_.size(); ++i) begins_[i] += begins_[i - 1];
  items_.resize(strokes_.size());
  std::vector<uint32_t> next(begins_.begin(), begins_.end() - 1);
  for (uint32_t i = 0; i < strokes_.size(); ++i) items_[next[CellOf(strokes_[i])]++] = i;
}

std::span<const uint32_t> StrokeIndex::OfLength(double length, double off) const {
  const auto first = std::lower_bound(
      byLength_.begin(), byLength_.end(), length - off,
      [this](uint32_t stroke, double value) { return strokes_[stroke].length < value; });
  const auto last = std::upper_bound(
      first, byLength_.end(), length + off,
      [this](double value, uint32_t stroke) { return value < strokes_[stroke].length; });
  return {first, last};
}

}  // namespace tamo
