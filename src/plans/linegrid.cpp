#include "plans/linegrid.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace tamo {
namespace {

constexpr LineCellSize kCells = {8, 400, 400.0 * 400};
constexpr double kSameWay = 0.1;  // sine of the angle between lines of one direction
constexpr double kShort = 1e-6;

double Length(const PageLine& line) {
  return Distance(line.from, line.to);
}

std::vector<PageLine> LongEnough(std::vector<PageLine> lines) {
  std::erase_if(lines, [](const PageLine& line) { return !(Length(line) > kShort); });
  return lines;
}

}  // namespace

LineGrid::LineGrid(std::vector<PageLine> lines)
    : lines_(LongEnough(std::move(lines))),
      cells_(
          lines_, [](const PageLine& line) -> const PageLine& { return line; }, kCells) {}

std::optional<PagePoint> LineGrid::Nearest(PagePoint at, double dx, double dy, double reach) const {
  std::optional<PagePoint> nearest;
  const PageBox& box = cells_.Around();
  if (at.x < box.left - reach || at.x > box.right + reach || at.y < box.top - reach ||
      at.y > box.bottom + reach)
    return nearest;
  for (int row = cells_.Row(at.y - reach); row <= cells_.Row(at.y + reach); ++row) {
    for (int column = cells_.Column(at.x - reach); column <= cells_.Column(at.x + reach);
         ++column) {
      for (const uint32_t number : cells_.In(column, row)) {
        const PageLine& line = lines_[number];
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
