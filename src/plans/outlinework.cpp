#include "plans/outlinework.h"

#include "plans/outline.h"

namespace tamo {

void OutlineWork::Begin(Mark::Kind kind, bool rectangle, int page, PagePoint at) {
  Drop();
  kind_ = kind;
  rectangle_ = rectangle;
  page_ = page;
  to_ = at;
  Add(at);
}

void OutlineWork::AddTo(std::vector<PagePoint>& points, PagePoint at) const {
  if (rectangle_ && !points.empty()) {
    const PagePoint from = points.front();
    points = {from, {at.x, from.y}, at, {from.x, at.y}};
  } else if (through_.has_value()) {
    const std::vector<PagePoint> arc = ArcThrough(points.back(), *through_, at);
    points.insert(points.end(), arc.begin(), arc.end());
  } else {
    points.push_back(at);
  }
}

void OutlineWork::Add(PagePoint at) {
  to_ = at;
  // A place that is pressed twice is one point.
  if (Active() && Last().x == at.x && Last().y == at.y) return;
  // The two points of an arc are taken back as one.
  if (!through_.has_value()) steps_.push_back(points_.size());
  if (arc_ && !through_.has_value()) {
    through_ = at;
    return;
  }
  AddTo(points_, at);
  through_.reset();
  arc_ = false;
}

void OutlineWork::TakeBack() {
  if (!Active()) return;
  const size_t before = steps_.back();
  steps_.pop_back();
  if (through_.has_value()) {
    through_.reset();
    return;
  }
  points_.resize(before);
  if (!Active()) Drop();
}

void OutlineWork::TurnArc() {
  if (!Active() || rectangle_) return;
  if (through_.has_value()) TakeBack();
  arc_ = !arc_;
}

std::vector<PagePoint> OutlineWork::PointsWithPointer() const {
  std::vector<PagePoint> points = points_;
  if (!points.empty()) AddTo(points, to_);
  return points;
}

}  // namespace tamo
