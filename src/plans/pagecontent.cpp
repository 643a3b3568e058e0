#include "plans/pagecontent.h"

#include <algorithm>
#include <cmath>

namespace tamo {
namespace {

constexpr int kMostCurveParts = 256;

using Outline = std::vector<PagePoint>;  // a closed one ends where it begins

PagePoint OnCurve(PagePoint from, const PathStep& curve, double t) {
  const double u = 1 - t;
  const double a = u * u * u;
  const double b = 3 * u * u * t;
  const double c = 3 * u * t * t;
  const double d = t * t * t;
  return {a * from.x + b * curve.by1.x + c * curve.by2.x + d * curve.at.x,
          a * from.y + b * curve.by1.y + c * curve.by2.y + d * curve.at.y};
}

// A curve in n equal parts lies within (the bend of its control polygon) / (8 n^2) * 6 of them.
int PartsOf(PagePoint from, const PathStep& curve, double tolerance) {
  const auto bend = [](PagePoint a, PagePoint b, PagePoint c) {
    return std::hypot(a.x - 2 * b.x + c.x, a.y - 2 * b.y + c.y);
  };
  const double most =
      std::max(bend(from, curve.by1, curve.by2), bend(curve.by1, curve.by2, curve.at));
  const double parts = std::ceil(std::sqrt(0.75 * most / std::max(tolerance, 1e-4)));
  return static_cast<int>(std::clamp(parts, 1.0, double(kMostCurveParts)));
}

std::vector<Outline> OutlinesOf(const PathPiece& path, double tolerance) {
  std::vector<Outline> outlines;
  for (const PathStep& step : path.steps) {
    if (step.kind == PathStep::Kind::Move || outlines.empty()) {
      outlines.push_back({step.at});
      continue;
    }
    Outline& outline = outlines.back();
    if (step.kind == PathStep::Kind::Curve) {
      const PagePoint from = outline.back();
      const int parts = PartsOf(from, step, tolerance);
      for (int i = 1; i < parts; ++i) outline.push_back(OnCurve(from, step, double(i) / parts));
    }
    outline.push_back(step.kind == PathStep::Kind::Close ? outline.front() : step.at);
    if (step.kind == PathStep::Kind::Close) outlines.push_back({step.at});
  }
  if (path.kind == PathPiece::Kind::Fill) {
    for (Outline& outline : outlines) outline.push_back(outline.front());
  }
  return outlines;
}

bool IsRectangle(const Outline& outline, double tolerance, PageBox& box) {
  if (outline.size() < 5) return false;
  box = NoBox();
  for (const PagePoint at : outline) box.Take(at);
  if (box.Width() <= tolerance && box.Height() <= tolerance) return false;
  const auto near = [tolerance](double a, double b) { return std::abs(a - b) <= tolerance; };
  PagePoint before = outline.front();
  std::vector<bool> sides;  // whether each runs along the page; points on a side do not count
  for (size_t i = 1; i < outline.size(); ++i) {
    const PagePoint at = outline[i];
    if (near(at.x, before.x) && near(at.y, before.y)) continue;
    const bool along = near(at.y, before.y) && (near(at.y, box.top) || near(at.y, box.bottom));
    const bool down = near(at.x, before.x) && (near(at.x, box.left) || near(at.x, box.right));
    if (!along && !down) return false;
    if (sides.empty() || sides.back() != along) sides.push_back(along);
    before = at;
  }
  if (sides.size() == 5) sides.pop_back();  // it began in the middle of a side
  const bool closed = near(before.x, outline.front().x) && near(before.y, outline.front().y);
  return closed && sides.size() == 4;
}

}  // namespace

PageBox NoBox() {
  return {1e9, 1e9, -1e9, -1e9};
}

PageBox PageBox::Cut(const PageBox& other) const {
  return {std::max(left, other.left), std::max(top, other.top), std::min(right, other.right),
          std::min(bottom, other.bottom)};
}

void PageBox::Take(PagePoint at) {
  left = std::min(left, at.x);
  right = std::max(right, at.x);
  top = std::min(top, at.y);
  bottom = std::max(bottom, at.y);
}

bool CutLine(PageLine& line, const PageBox& box) {
  const double dx = line.to.x - line.from.x;
  const double dy = line.to.y - line.from.y;
  double first = 0;
  double last = 1;
  // How far the line is inside of one edge: at its start, and its change along the whole line.
  const std::pair<double, double> edges[] = {{line.from.x - box.left, dx},
                                             {box.right - line.from.x, -dx},
                                             {line.from.y - box.top, dy},
                                             {box.bottom - line.from.y, -dy}};
  for (const auto& [inside, change] : edges) {
    if (change == 0) {
      if (inside < 0) return false;
    } else if (change > 0) {
      first = std::max(first, -inside / change);
    } else {
      last = std::min(last, -inside / change);
    }
  }
  if (first > last) return false;
  const PagePoint from = line.from;
  line = {{from.x + first * dx, from.y + first * dy}, {from.x + last * dx, from.y + last * dy}};
  return true;
}

std::vector<PageLine> Flattened(const PathPiece& path, double tolerance) {
  std::vector<PageLine> lines;
  for (const Outline& outline : OutlinesOf(path, tolerance)) {
    for (size_t i = 1; i < outline.size(); ++i) {
      PageLine line = {outline[i - 1], outline[i]};
      if (Distance(line.from, line.to) > 0 && CutLine(line, path.clip)) lines.push_back(line);
    }
  }
  return lines;
}

std::vector<PageBox> RectanglesOf(const PathPiece& path, double tolerance) {
  std::vector<PageBox> boxes;
  for (const Outline& outline : OutlinesOf(path, 1)) {
    PageBox box;
    if (!IsRectangle(outline, tolerance, box)) continue;
    const PageBox seen = box.Cut(path.clip);
    if (seen.right >= seen.left && seen.bottom >= seen.top) boxes.push_back(seen);
  }
  return boxes;
}

}  // namespace tamo
