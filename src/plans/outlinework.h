#pragma once

#include <optional>
#include <vector>

#include "plans/mark.h"

namespace tamo {

// The outline that is being drawn point by point and is no mark yet.
class OutlineWork {
 public:
  void Begin(Mark::Kind kind, bool rectangle, int page, PagePoint at);
  void Drop() { *this = {}; }
  bool Active() const { return !steps_.empty(); }

  // The next point: a corner, or of an arc the point that it goes through, then its end.
  void Add(PagePoint at);
  void Move(PagePoint to) { to_ = to; }  // the pointer, without a point set
  void TakeBack();                       // the point set last; the first one ends the outline
  // The next two points are those of an arc; called again, a corner comes next after all.
  void TurnArc();
  bool InArc() const { return arc_; }

  Mark::Kind Kind() const { return kind_; }
  bool Rectangle() const { return rectangle_; }
  int Page() const { return page_; }
  PagePoint First() const { return points_.front(); }
  PagePoint Last() const { return through_.value_or(points_.back()); }
  size_t PlacesSet() const { return steps_.size(); }
  // What is set, and what it would be if the pointer's place were the next point.
  const std::vector<PagePoint>& Points() const { return points_; }
  std::vector<PagePoint> PointsWithPointer() const;

  QString text;  // its running measure, as the label of the mark would say it

 private:
  void AddTo(std::vector<PagePoint>& points, PagePoint at) const;

  Mark::Kind kind_ = Mark::Kind::Polyline;
  bool rectangle_ = false;
  int page_ = 1;
  std::vector<PagePoint> points_;
  std::vector<size_t> steps_;  // how many points there were before each place was set
  bool arc_ = false;
  std::optional<PagePoint> through_;
  PagePoint to_;
};

}  // namespace tamo
