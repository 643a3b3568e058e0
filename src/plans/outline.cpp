#include "plans/outline.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace tamo {
namespace {

// Twice the area of the triangle, positive when c lies to the left of the way from a to b.
double Turn(PagePoint a, PagePoint b, PagePoint c) {
  return (b.x - a.x) * (c.y - a.y) - (b.y - a.y) * (c.x - a.x);
}

bool Within(double value, double one, double other) {
  return value >= std::min(one, other) && value <= std::max(one, other);
}

bool OnSide(PagePoint at, PagePoint a, PagePoint b) {
  return Within(at.x, a.x, b.x) && Within(at.y, a.y, b.y);
}

bool Meet(PagePoint a, PagePoint b, PagePoint c, PagePoint d) {
  if (std::max(a.x, b.x) < std::min(c.x, d.x) || std::max(c.x, d.x) < std::min(a.x, b.x) ||
      std::max(a.y, b.y) < std::min(c.y, d.y) || std::max(c.y, d.y) < std::min(a.y, b.y))
    return false;
  const double abc = Turn(a, b, c);
  const double abd = Turn(a, b, d);
  const double cda = Turn(c, d, a);
  const double cdb = Turn(c, d, b);
  if (((abc > 0 && abd < 0) || (abc < 0 && abd > 0)) &&
      ((cda > 0 && cdb < 0) || (cda < 0 && cdb > 0)))
    return true;
  return (abc == 0 && OnSide(c, a, b)) || (abd == 0 && OnSide(d, a, b)) ||
         (cda == 0 && OnSide(a, c, d)) || (cdb == 0 && OnSide(b, c, d));
}

// A side that runs back over the one before it.
bool TurnsBack(PagePoint a, PagePoint b, PagePoint c) {
  const double ahead = (b.x - a.x) * (c.x - b.x) + (b.y - a.y) * (c.y - b.y);
  return Turn(a, b, c) == 0 && ahead < 0;
}

PagePoint Next(OutlinePoints points, size_t at) {
  return points[at + 1 < points.size() ? at + 1 : 0];
}

}  // namespace

double OutlineLength(OutlinePoints points, bool closed) {
  double length = 0;
  for (size_t i = 0; i + 1 < points.size(); ++i) length += Distance(points[i], points[i + 1]);
  if (closed && points.size() > 2) length += Distance(points.back(), points.front());
  return length;
}

double OutlineArea(OutlinePoints points) {
  double twice = 0;
  for (size_t i = 0; i < points.size(); ++i) twice += Turn(points[0], points[i], Next(points, i));
  return std::abs(twice) / 2;
}

bool CrossesItself(OutlinePoints points) {
  const size_t count = points.size();
  for (size_t i = 0; i < count; ++i) {
    const PagePoint a = points[i];
    const PagePoint b = Next(points, i);
    if (TurnsBack(a, b, points[(i + 2) % count])) return true;
    for (size_t j = i + 2; j < count; ++j) {
      if (i == 0 && j + 1 == count) continue;
      if (Meet(a, b, points[j], Next(points, j))) return true;
    }
  }
  return false;
}

double DistanceToLine(PagePoint at, PagePoint from, PagePoint to) {
  const double dx = to.x - from.x;
  const double dy = to.y - from.y;
  const double length = dx * dx + dy * dy;
  if (length == 0) return Distance(at, from);
  const double along = std::clamp(((at.x - from.x) * dx + (at.y - from.y) * dy) / length, 0.0, 1.0);
  return Distance(at, {from.x + along * dx, from.y + along * dy});
}

bool HoldsPlace(OutlinePoints points, PagePoint at, double reach) {
  bool inside = false;
  for (size_t i = 0; i < points.size(); ++i) {
    const PagePoint a = points[i];
    const PagePoint b = Next(points, i);
    if (DistanceToLine(at, a, b) <= reach) return true;
    if ((a.y > at.y) != (b.y > at.y) && at.x < a.x + (at.y - a.y) * (b.x - a.x) / (b.y - a.y))
      inside = !inside;
  }
  return inside;
}

// Each side of the inner one, between the places where it meets the outer one, lies inside.
bool HoldsOutline(OutlinePoints outer, OutlinePoints inner, double reach) {
  for (size_t i = 0; i < inner.size(); ++i) {
    const PagePoint a = inner[i];
    const PagePoint b = Next(inner, i);
    if (!HoldsPlace(outer, a, reach)) return false;
    std::vector<double> cuts = {0, 1};
    for (size_t j = 0; j < outer.size(); ++j) {
      const double one = Turn(outer[j], Next(outer, j), a);
      const double other = Turn(outer[j], Next(outer, j), b);
      if ((one > 0) != (other > 0)) cuts.push_back(one / (one - other));
    }
    std::sort(cuts.begin(), cuts.end());
    for (size_t cut = 0; cut + 1 < cuts.size(); ++cut) {
      const double part = (cuts[cut] + cuts[cut + 1]) / 2;
      if (!HoldsPlace(outer, {a.x + part * (b.x - a.x), a.y + part * (b.y - a.y)}, reach))
        return false;
    }
  }
  return true;
}

std::vector<PagePoint> ArcThrough(PagePoint from, PagePoint through, PagePoint to) {
  constexpr double kOff = 0.01;
  constexpr double kWholeTurn = 2 * std::numbers::pi;
  const double turn = Turn(from, through, to);
  const double span = Distance(from, through) * Distance(through, to) * Distance(from, to);
  if (std::abs(turn) < 1e-9 || span / std::abs(2 * turn) > 1e6) return {to};
  // The circle through three points, as seen from the first.
  const double bx = through.x - from.x;
  const double by = through.y - from.y;
  const double cx = to.x - from.x;
  const double cy = to.y - from.y;
  const double b = bx * bx + by * by;
  const double c = cx * cx + cy * cy;
  const PagePoint centre = {from.x + (cy * b - by * c) / (2 * turn),
                            from.y + (bx * c - cx * b) / (2 * turn)};
  const double radius = Distance(centre, from);
  const double start = std::atan2(from.y - centre.y, from.x - centre.x);
  double sweep = std::atan2(to.y - centre.y, to.x - centre.x) - start;
  if (turn > 0 && sweep < 0) sweep += kWholeTurn;
  if (turn < 0 && sweep > 0) sweep -= kWholeTurn;
  const double step = 2 * std::acos(1 - std::min(0.5, kOff / radius));
  const int parts = std::clamp(static_cast<int>(std::ceil(std::abs(sweep) / step)), 2, 720);
  std::vector<PagePoint> points;
  for (int i = 1; i < parts; ++i) {
    const double angle = start + sweep * i / parts;
    points.push_back({centre.x + radius * std::cos(angle), centre.y + radius * std::sin(angle)});
  }
  points.push_back(to);
  return points;
}

PagePoint RoomiestPlace(OutlinePoints points) {
  if (points.empty()) return {};
  const auto [low, high] = std::minmax_element(points.begin(), points.end(),
                                               [](PagePoint a, PagePoint b) { return a.y < b.y; });
  constexpr int kLevels = 32;
  PagePoint best = points[0];
  double widest = -1;
  for (int level = 0; level < kLevels; ++level) {
    // From the middle outwards, so that of equal widths the one in the middle is taken.
    const int off = level / 2 * (level % 2 == 0 ? 1 : -1) - level % 2;
    const double y = low->y + (high->y - low->y) * (0.5 + (off + 0.5) / kLevels);
    std::vector<double> cuts;
    for (size_t i = 0; i < points.size(); ++i) {
      const PagePoint a = points[i];
      const PagePoint b = Next(points, i);
      if ((a.y > y) != (b.y > y)) cuts.push_back(a.x + (y - a.y) * (b.x - a.x) / (b.y - a.y));
    }
    std::sort(cuts.begin(), cuts.end());
    for (size_t i = 0; i + 1 < cuts.size(); i += 2) {
      const double width = cuts[i + 1] - cuts[i];
      if (width <= widest * 1.001) continue;
      widest = width;
      best = {(cuts[i] + cuts[i + 1]) / 2, y};
    }
  }
  return best;
}

}  // namespace tamo
