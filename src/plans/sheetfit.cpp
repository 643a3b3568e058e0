#include "plans/sheetfit.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace tamo {
namespace {

constexpr double kDegree = std::numbers::pi / 180;
constexpr double kLeastWay = 1;    // points between two places that say how a sheet lies
constexpr double kMostSize = 100;  // times larger or smaller
constexpr double kSameSize = 0.5;  // points

}  // namespace

PagePoint SheetFit::Back(PagePoint at) const {
  const double square = a * a + b * b;
  const double x = at.x - dx;
  const double y = at.y - dy;
  return {(a * x + b * y) / square, (a * y - b * x) / square};
}

double SheetFit::Size() const {
  return std::hypot(a, b);
}

double SheetFit::Turn() const {
  return std::atan2(b, a) / kDegree;
}

int SheetFit::Quarters() const {
  return (static_cast<int>(std::lround(Turn() / 90)) + 4) % 4;
}

SheetFit Fit(double size, double degrees, double dx, double dy) {
  // Whole quarters exactly, so that lines stay upright.
  if (std::fmod(degrees, 90) == 0) {
    static constexpr int kSine[] = {0, 1, 0, -1};
    const int quarter = (static_cast<int>(degrees / 90) % 4 + 4) % 4;
    return {size * kSine[(quarter + 1) % 4], size * kSine[quarter], dx, dy};
  }
  return {size * std::cos(degrees * kDegree), size * std::sin(degrees * kDegree), dx, dy};
}

SheetFit Joined(const SheetFit& first, const SheetFit& next) {
  const PagePoint moved = next.To({first.dx, first.dy});
  return {next.a * first.a - next.b * first.b, next.b * first.a + next.a * first.b, moved.x,
          moved.y};
}

std::optional<SheetFit> FitByPoints(PagePoint from1, PagePoint from2, PagePoint to1,
                                    PagePoint to2) {
  if (Distance(from1, from2) < kLeastWay || Distance(to1, to2) < kLeastWay) return std::nullopt;
  const double size = Distance(to1, to2) / Distance(from1, from2);
  if (!(size < kMostSize && size > 1 / kMostSize)) return std::nullopt;
  const double turn =
      std::atan2(to2.y - to1.y, to2.x - to1.x) - std::atan2(from2.y - from1.y, from2.x - from1.x);
  SheetFit fit = Fit(size, turn / kDegree, 0, 0);
  const PagePoint first = fit.To(from1);
  fit.dx = to1.x - first.x;
  fit.dy = to1.y - first.y;
  return fit;
}

SheetFit FitInto(PageSize sheet, PageSize into) {
  if (std::abs(sheet.width - into.width) < kSameSize &&
      std::abs(sheet.height - into.height) < kSameSize)
    return {};
  const double size = std::min(into.width / sheet.width, into.height / sheet.height);
  return {size, 0, (into.width - sheet.width * size) / 2, (into.height - sheet.height * size) / 2};
}

double FarthestApart(const SheetFit& one, const SheetFit& other, PageSize sheet) {
  double most = 0;
  for (const PagePoint corner : {PagePoint{0, 0}, PagePoint{sheet.width, 0},
                                 PagePoint{0, sheet.height}, PagePoint{sheet.width, sheet.height}})
    most = std::max(most, Distance(one.To(corner), other.To(corner)));
  return most;
}

}  // namespace tamo
