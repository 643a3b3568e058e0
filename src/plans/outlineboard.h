#pragma once

#include <optional>
#include <utility>
#include <vector>

#include "plans/markedsheets.h"
#include "plans/outlinework.h"
#include "plans/paperunit.h"
#include "plans/plankey.h"

namespace tamo {

// The tools that draw point by point: polyline, perimeter, area, rectangle and cut-out. Each press
// sets a point; Enter or a double click ends, a closed outline also a press on its first point. A
// drag from the first point draws a rectangle, of a polyline its first length.
class OutlineBoard : public MarkedSheets {
 public:
  virtual PaperUnit Unit() const = 0;
  // Its points so far and the pointer's, with its running measure; of the pen's colour and width.
  std::optional<Mark> OutlineInWork() const;
  // What a mark of this kind would say here by the scale in force.
  QString LabelInForce(Mark::Kind kind, std::vector<PagePoint> points) {
    return Measured(kind, std::move(points), true);
  }
  bool InArc() const { return outline_.InArc(); }

  static bool DrawsOutlines(PlanTool tool) { return tool >= PlanTool::Polyline; }

 protected:
  void PressOutline(PlanTool tool, PagePoint at, bool shift);
  void MoveOutline(PagePoint at, bool shift);
  void ReleaseOutline(PagePoint at);
  // True when the key was the outline's.
  bool TakeOutlineKey(PlanKey key);
  void EndOutline();
  void DropOutline();
  bool OutlineActive() const { return outline_.Active(); }
  PagePoint LastOfOutline() const { return outline_.Last(); }  // while it is active
  void MeasureOutline();                                       // its running measure anew

 private:
  PagePoint Straight(PagePoint at, bool shift) const;
  bool ClosesAt(PagePoint at) const;
  QString WhyNot(const std::vector<PagePoint>& points) const;
  QString Measured(Mark::Kind kind, std::vector<PagePoint> points, bool running);
  void MakeMark(std::vector<PagePoint> points);

  OutlineWork outline_;
};

// From `from` towards `at` in steps of 45 degrees: the foot of `at` on the nearest of them.
PagePoint OnEighthTurn(PagePoint from, PagePoint at);
// Points of paper in the unit.
double InPaperUnit(double points, PaperUnit unit);

}  // namespace tamo
