#pragma once

#include <QString>
#include <optional>

#include "plans/freepointer.h"
#include "plans/outlineboard.h"
#include "plans/plankey.h"
#include "plans/sheetbox.h"

namespace tamo {

// The line that is being drawn and is no mark yet.
struct LineInWork {
  bool active = false;
  bool check = false;  // measures a known dimension and will leave no mark
  int page = 1;
  PagePoint from;
  PagePoint to;
  QString text;  // its running length, as the label of the mark would say it
};

// The tools: what the mouse and the keys draw and measure on the sheets. Places in points on the
// current page.
class DrawingBoard : public OutlineBoard {
 public:
  DrawingBoard();

  // --- Measuring
  // A whole number, a fraction, or a whole number, a blank and a fraction: "1 1/2" gives 1.5.
  // Anything else gives 0.
  double EvaluateFraction(const QString& text) const;
  void SetUnitName(const QString& name);  // does not change the unit
  QString UnitName() const { return unitName_; }
  void SetUnit(PaperUnit unit);
  PaperUnit Unit() const override { return unit_; }
  // The next line is a check: it raises onLineChecked instead of onLineMeasured and leaves no mark.
  void SetCheckNext(bool check);
  bool CheckNext() const { return work_.check; }

  // --- What the user does
  // Picks a tool. Raises onBeforeModeChange and onModeChanged, also when it is in hand already.
  void PickTool(PlanTool tool);
  PlanTool Tool() const { return tool_; }
  // Measuring: press, move with the button down and release draws a line; press and release in one
  // place begins a line that the next press and release ends. Counting: a press places a circle.
  void Press(PagePoint at, bool shift);
  void Move(PagePoint at, bool shift);
  void Release(PagePoint at, bool shift);
  void DoubleClick(PagePoint at, bool shift);  // its second press
  void Key(const PlanStroke& stroke);
  void DrawLine(PagePoint from, PagePoint to);  // the whole line; takes the tool first
  void PlaceCircle(PagePoint at);               // takes the tool first
  // All at once, taken back as one; false when this plan may not be marked.
  bool PlaceCircles(const std::vector<PagePoint>& places);
  bool CountsAlike(const Mark& mark) const;  // a circle that counts with the next one
  // The whole outline, with one of the tools that draw them; takes the tool first.
  void DrawOutline(PlanTool tool, const std::vector<PagePoint>& points);

  // The box around a table or a symbol; presses draw it while it is asked for.
  SheetBox& Box() { return box_; }
  const SheetBox& Box() const { return box_; }

  // The next presses, whatever tool is in hand, give points and draw nothing.
  void SetPointNext(bool point);
  bool PointNext() const { return pointNext_; }

  // What is painted of it; nothing is worked out here.
  const LineInWork& LineWork() const { return work_; }
  PagePoint CrossHair() const { return crossHair_; }
  // The last point set of what is in work, from which the next part of it goes.
  std::optional<PagePoint> WorkFrom() const;
  // The scale has changed: the running length is worked out anew.
  void ScaleChanged();

 protected:
  // A plan is put on the board: inches, feet, no tool in hand, no line in work.
  void ClearBoard();
  void CentreCrossHair();
  void LeavePage() override { DropWork(); }
  // True when the key was one of a plan that is laid over this one.
  virtual bool TakeOverlayKey(const PlanStroke& /*stroke*/) { return false; }
  // True when the key was one of those who help on the board, and not the outline's in work.
  virtual bool TakeHelperKey(const PlanStroke& /*stroke*/) { return false; }
  // What the pointer does while no tool is in hand.
  virtual FreePointer& Free() = 0;
  // Whether this plan may be marked; asks the user where it has to be asked.
  virtual bool MayMark() { return true; }

 private:
  void BeginLine(PagePoint at);
  void MoveLine(PagePoint to);
  void EndLine();
  void DropLine();
  void DropWork();  // the line and the outline
  void MoveCrossHair(const PlanStroke& stroke);
  void PressArrow(const PlanStroke& stroke);
  void PressSpace(bool shift);
  PagePoint LineEnd(PagePoint at, bool shift) const;
  double PaperLength() const;

  PlanTool tool_ = PlanTool::None;
  QString unitName_ = QStringLiteral("feet");
  PaperUnit unit_ = PaperUnit::Inches;
  enum class LineState { None, Dragging, Placed, Closing };
  LineState line_ = LineState::None;
  LineInWork work_;
  bool pointNext_ = false;
  SheetBox box_;
  PagePoint crossHair_ = {306, 396};
};

}  // namespace tamo
