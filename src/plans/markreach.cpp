#include "plans/markreach.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "plans/marklegend.h"
#include "plans/outline.h"

namespace tamo {
namespace {

struct Found {
  double distance = 0;
  QString name;
};

std::vector<QString> NamesByDistance(std::vector<Found> found) {
  std::stable_sort(found.begin(), found.end(),
                   [](const Found& a, const Found& b) { return a.distance < b.distance; });
  std::vector<QString> names;
  names.reserve(found.size());
  for (Found& one : found) names.push_back(std::move(one.name));
  return names;
}

}  // namespace

double DistanceToMark(const Mark& mark, PagePoint at, double markerSize) {
  const std::vector<PagePoint>& points = mark.points;
  if (points.empty()) return std::numeric_limits<double>::max();
  if (mark.kind == Mark::Kind::Circle)
    return std::max(0.0, Distance(points.front(), at) - markerSize / 2);
  if (mark.kind == Mark::Kind::Legend) {
    const LegendShape shape = ShapeOfLegend(mark);
    const double dx = std::max({shape.at.x - at.x, at.x - shape.at.x - shape.width, 0.0});
    const double dy = std::max({shape.at.y - at.y, at.y - shape.at.y - shape.height, 0.0});
    return std::hypot(dx, dy);
  }
  double nearest = Distance(points.front(), at);
  for (size_t i = 0; i + 1 < points.size(); ++i)
    nearest = std::min(nearest, DistanceToLine(at, points[i], points[i + 1]));
  if (IsOutline(mark.kind))
    nearest = std::min(nearest, DistanceToLine(at, points.back(), points.front()));
  return nearest;
}

// The one drawn last lies on top, so it comes first of those that are equally near.
std::vector<QString> MarksAt(const std::vector<Mark>& marks, int page, PagePoint at, double reach,
                             double markerSize) {
  std::vector<Found> near;
  std::vector<Found> around;
  for (auto mark = marks.rbegin(); mark != marks.rend(); ++mark) {
    if (mark->page != page) continue;
    const double distance = DistanceToMark(*mark, at, markerSize);
    if (distance <= reach) near.push_back({distance, mark->name});
    if (IsSurface(mark->kind) && HoldsPlace(mark->points, at, 0))
      around.push_back({OutlineArea(mark->points), mark->name});
  }
  return NamesByDistance(near.empty() ? std::move(around) : std::move(near));
}

int PointAt(const Mark& mark, PagePoint at, double reach) {
  int found = -1;
  for (size_t i = 0; i < mark.points.size(); ++i) {
    const double distance = Distance(mark.points[i], at);
    if (distance > reach) continue;
    reach = distance;
    found = static_cast<int>(i);
  }
  return found;
}

}  // namespace tamo
