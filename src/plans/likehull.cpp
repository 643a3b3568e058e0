#include "plans/likehull.h"

#include <algorithm>
#include <cmath>

#include "plans/outline.h"

namespace tamo {
namespace {

double Side(PagePoint from, PagePoint to, PagePoint at) {
  return (to.x - from.x) * (at.y - from.y) - (to.y - from.y) * (at.x - from.x);
}

// 1 or -1: on which side of its edges the inside lies. A mirrored outline runs the other way.
double Way(const std::vector<PagePoint>& hull) {
  double twice = 0;
  for (size_t i = 0; i < hull.size(); ++i) {
    const PagePoint a = hull[i];
    const PagePoint b = hull[(i + 1) % hull.size()];
    twice += a.x * b.y - b.x * a.y;
  }
  return twice < 0 ? -1 : 1;
}

// How far a place lies inside of the edge that begins at the corner.
double Inside(const std::vector<PagePoint>& hull, size_t corner, double way, PagePoint at) {
  const PagePoint from = hull[corner];
  const PagePoint to = hull[(corner + 1) % hull.size()];
  const double length = Distance(from, to);
  return length == 0 ? 1e9 : way * Side(from, to, at) / length;
}

void TakeCorner(std::vector<PagePoint>& hull, size_t least, PagePoint at) {
  while (hull.size() >= least + 2 && Side(hull[hull.size() - 2], hull.back(), at) <= 0)
    hull.pop_back();
  hull.push_back(at);
}

PagePoint Between(PagePoint from, PagePoint to, double part) {
  return {from.x + part * (to.x - from.x), from.y + part * (to.y - from.y)};
}

}  // namespace

std::vector<PagePoint> HullOf(std::vector<PagePoint> places) {
  std::sort(places.begin(), places.end(),
            [](PagePoint a, PagePoint b) { return a.x != b.x ? a.x < b.x : a.y < b.y; });
  const auto same = [](PagePoint a, PagePoint b) { return a.x == b.x && a.y == b.y; };
  places.erase(std::unique(places.begin(), places.end(), same), places.end());
  if (places.size() < 3) return places;
  std::vector<PagePoint> hull;
  for (const PagePoint at : places) TakeCorner(hull, 0, at);
  const size_t lower = hull.size() - 1;
  for (size_t i = places.size() - 1; i-- > 0;) TakeCorner(hull, lower, places[i]);
  hull.pop_back();
  return hull;
}

bool CutToHull(PageLine& line, const std::vector<PagePoint>& hull, double inset) {
  if (hull.size() < 3) return false;
  const double way = Way(hull);
  double first = 0;
  double last = 1;
  for (size_t i = 0; i < hull.size(); ++i) {
    const double begin = Inside(hull, i, way, line.from) - inset;
    const double end = Inside(hull, i, way, line.to) - inset;
    if (begin < 0 && end < 0) return false;
    if (begin < 0) first = std::max(first, begin / (begin - end));
    if (end < 0) last = std::min(last, begin / (begin - end));
  }
  if (first >= last) return false;
  line = {Between(line.from, line.to, first), Between(line.from, line.to, last)};
  return true;
}

bool InHull(PagePoint at, const std::vector<PagePoint>& hull, double inset) {
  const double way = Way(hull);
  for (size_t i = 0; i < hull.size(); ++i) {
    if (Inside(hull, i, way, at) < inset) return false;
  }
  return hull.size() >= 3;
}

double HullArea(const std::vector<PagePoint>& hull) {
  return hull.size() < 3 ? 0 : OutlineArea(hull);
}

double SharedArea(const std::vector<PagePoint>& one, const std::vector<PagePoint>& other) {
  std::vector<PagePoint> shared = one;
  const double way = Way(other);
  for (size_t edge = 0; edge < other.size() && !shared.empty(); ++edge) {
    std::vector<PagePoint> kept;
    for (size_t i = 0; i < shared.size(); ++i) {
      const PagePoint at = shared[i];
      const PagePoint next = shared[(i + 1) % shared.size()];
      const double here = Inside(other, edge, way, at);
      const double there = Inside(other, edge, way, next);
      if (here >= 0) kept.push_back(at);
      if ((here >= 0) != (there >= 0)) kept.push_back(Between(at, next, here / (here - there)));
    }
    shared = std::move(kept);
  }
  return HullArea(shared);
}

PageBox BoxAround(const std::vector<PagePoint>& places) {
  PageBox box = NoBox();
  for (const PagePoint at : places) box.Take(at);
  return box;
}

}  // namespace tamo
