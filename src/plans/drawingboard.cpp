#include "plans/drawingboard.h"

#include <algorithm>
#include <utility>

#include "plans/fraction.h"
#include "plans/planway.h"
#include "plans/scales.h"

namespace tamo {
namespace {

constexpr double kScrollStep = 36;  // half an inch
constexpr double kClickReach = 2;   // points the hand may shake within a click

}  // namespace

DrawingBoard::DrawingBoard() {
  box_.onChanged = [this] { Repaint(); };
}

void DrawingBoard::ClearBoard() {
  unit_ = PaperUnit::Inches;
  unitName_ = QStringLiteral("feet");
  line_ = LineState::None;
  work_ = {};
  DropOutline();
  box_.Drop();
  ForgetGroup();
  if (tool_ != PlanTool::None) PickTool(PlanTool::None);
}

void DrawingBoard::CentreCrossHair() {
  const PageSize size = SizeOfPage(Page());
  crossHair_ = {size.width / 2, size.height / 2};
}

// --- Measuring

double DrawingBoard::EvaluateFraction(const QString& text) const {
  return FractionValue(text);
}

void DrawingBoard::SetUnitName(const QString& name) {
  unitName_ = name;
  ScaleChanged();
}

void DrawingBoard::SetUnit(PaperUnit unit) {
  unit_ = unit;
  ScaleChanged();
}

void DrawingBoard::SetCheckNext(bool check) {
  work_.check = check;
}

double DrawingBoard::PaperLength() const {
  return InPaperUnit(Distance(work_.from, work_.to), unit_);
}

void DrawingBoard::ScaleChanged() {
  if (OutlineActive()) MeasureOutline();
  if (!work_.active) return;
  double length = PaperLength();
  QString label = UnitInWords(unit_);
  Raise(onLineRunning, length, label);
  work_.text = LengthText(length) + QLatin1Char(' ') + label;
  Repaint();
}

// --- The line in work

// With Shift the line keeps to steps of 45 degrees: it ends at the foot of the pointer on the
// nearest of those directions.
PagePoint DrawingBoard::LineEnd(PagePoint at, bool shift) const {
  return shift ? OnEighthTurn(work_.from, at) : at;
}

void DrawingBoard::BeginLine(PagePoint at) {
  line_ = LineState::Dragging;
  work_.active = true;
  work_.page = Page();
  work_.from = at;
  MoveLine(at);
}

void DrawingBoard::MoveLine(PagePoint to) {
  work_.to = to;
  ScaleChanged();
}

void DrawingBoard::DropLine() {
  if (line_ == LineState::None) return;
  line_ = LineState::None;
  work_.active = false;
  Repaint();
}

std::optional<PagePoint> DrawingBoard::WorkFrom() const {
  if (work_.active) return work_.from;
  return OutlineActive() ? std::optional(LastOfOutline()) : std::nullopt;
}

void DrawingBoard::DropWork() {
  DropLine();
  DropOutline();
}

void DrawingBoard::EndLine() {
  line_ = LineState::None;
  work_.active = false;
  double length = PaperLength();
  if (std::exchange(work_.check, false)) {
    Repaint();
    Raise(onLineChecked, length);
    return;
  }
  // Made first: whoever is told may change the pen or begin another line.
  Mark mark = NewMark(Mark::Kind::Line, {work_.from, work_.to});
  QString label = UnitInWords(unit_);
  Raise(onLineMeasured, length, label);
  mark.label = LengthText(length);
  if (!label.isEmpty()) mark.label += QLatin1Char(' ') + label;
  AddMark(std::move(mark));
}

// --- The tools

void DrawingBoard::PickTool(PlanTool tool) {
  DropWork();
  if (tool != PlanTool::None && !MayMark()) tool = PlanTool::None;
  if (tool == PlanTool::Grouping && Group().isEmpty()) ChooseGroup(QStringLiteral("Group 1"));
  if (tool != PlanTool::None) Free().LetGo();
  Raise(onBeforeModeChange);
  tool_ = tool;
  Raise(onModeChanged, tool);
  Repaint();
}

void DrawingBoard::Press(PagePoint at, bool shift) {
  if (!IsPlace(at)) return;
  crossHair_ = at;
  if (pointNext_) return Raise(onPointGiven, at);
  Raise(onMousePressed);
  if (box_.Asked()) return box_.Begin(at);
  if (tool_ == PlanTool::None) return Free().Press(at);
  if (!MayMark()) return PickTool(PlanTool::None);
  if (tool_ == PlanTool::Grouping) AddToGroup({at});
  if (tool_ == PlanTool::Counting) AddMark(NewMark(Mark::Kind::Circle, {at}));
  if (DrawsOutlines(tool_)) return PressOutline(tool_, at, shift);
  if (tool_ != PlanTool::Measuring) return;
  if (line_ == LineState::Placed) {
    line_ = LineState::Closing;
    MoveLine(LineEnd(at, shift));
  } else {
    BeginLine(at);
  }
}

void DrawingBoard::Move(PagePoint at, bool shift) {
  if (!IsPlace(at)) return;
  crossHair_ = at;
  if (box_.Growing()) return box_.Stretch(Page(), at);
  if (OutlineActive()) return MoveOutline(at, shift);
  if (line_ != LineState::None) {
    MoveLine(LineEnd(at, shift));
  } else if (tool_ != PlanTool::None || pointNext_) {
    Repaint();
  } else {
    Free().Move(at, shift);
  }
}

void DrawingBoard::Release(PagePoint at, bool shift) {
  if (!IsPlace(at)) return;
  if (box_.Growing()) return box_.End(Page(), at);
  if (OutlineActive()) return ReleaseOutline(at);
  if (tool_ == PlanTool::None) return Free().Release(at, shift);
  if (line_ == LineState::None) return;
  work_.to = LineEnd(at, shift);
  if (line_ == LineState::Dragging && Distance(work_.from, work_.to) <= kClickReach) {
    line_ = LineState::Placed;
    MoveLine(work_.from);
  } else if (line_ == LineState::Placed) {
    MoveLine(work_.to);
  } else {
    EndLine();
  }
}

void DrawingBoard::DrawLine(PagePoint from, PagePoint to) {
  if (!IsPlace(from) || !IsPlace(to)) return;
  if (tool_ != PlanTool::Measuring) PickTool(PlanTool::Measuring);
  DropLine();
  Press(from, false);
  Move(to, false);
  if (line_ != LineState::None) EndLine();
}

// The first press of the two has set its point.
void DrawingBoard::DoubleClick(PagePoint at, bool shift) {
  if (OutlineActive()) return EndOutline();
  Press(at, shift);
}

void DrawingBoard::DrawOutline(PlanTool tool, const std::vector<PagePoint>& points) {
  if (!DrawsOutlines(tool) || !std::all_of(points.begin(), points.end(), IsPlace)) return;
  if (tool_ != tool) PickTool(tool);
  DropOutline();
  for (const PagePoint at : points) Press(at, false);
  if (OutlineActive()) EndOutline();
}

void DrawingBoard::PlaceCircle(PagePoint at) {
  if (tool_ != PlanTool::Counting) PickTool(PlanTool::Counting);
  Press(at, false);
  Release(at, false);
}

void DrawingBoard::SetPointNext(bool point) {
  DropWork();
  pointNext_ = point;
  Repaint();
}

// The tool that is in hand counts, or the counting tool is taken.
bool DrawingBoard::PlaceCircles(const std::vector<PagePoint>& places) {
  if (tool_ != PlanTool::Grouping && tool_ != PlanTool::Counting) PickTool(PlanTool::Counting);
  if (tool_ == PlanTool::None || !MayMark()) return false;
  if (tool_ == PlanTool::Grouping) {
    AddToGroup(places);
    return true;
  }
  std::vector<Mark> marks;
  marks.reserve(places.size());
  for (const PagePoint at : places) marks.push_back(NewMark(Mark::Kind::Circle, {at}));
  AddMarks(std::move(marks));
  return true;
}

bool DrawingBoard::CountsAlike(const Mark& mark) const {
  if (tool_ != PlanTool::Grouping) return mark.kind == Mark::Kind::Circle;
  return mark.kind == Mark::Kind::Grouped && mark.group == Group();
}

// --- The keys

void DrawingBoard::MoveCrossHair(const PlanStroke& stroke) {
  const PagePoint way = DirectionOf(stroke.key);
  const double step = stroke.ctrl ? kFineStep : kCoarseStep;
  const PageSize size = SizeOfPage(Page());
  Move({std::clamp(crossHair_.x + way.x * step, 0.0, size.width),
        std::clamp(crossHair_.y + way.y * step, 0.0, size.height)},
       stroke.shift);
}

void DrawingBoard::PressArrow(const PlanStroke& stroke) {
  const PagePoint way = DirectionOf(stroke.key);
  if (tool_ == PlanTool::None && !box_.Asked() && !pointNext_) {
    ScrollBy(way.x * kScrollStep, way.y * kScrollStep);
  } else {
    MoveCrossHair(stroke);
  }
}

// Space is the mouse button of the keyboard: it places the first point, then the second.
void DrawingBoard::PressSpace(bool shift) {
  if (box_.Growing()) return box_.End(Page(), crossHair_);
  if (tool_ == PlanTool::None && !box_.Asked() && !pointNext_) return;
  Press(crossHair_, shift);
  if (line_ == LineState::Dragging) line_ = LineState::Placed;
  if (line_ == LineState::Closing) EndLine();
}

void DrawingBoard::Key(const PlanStroke& stroke) {
  if (TakeOverlayKey(stroke)) return;
  if (TakeOutlineKey(stroke.key) || TakeHelperKey(stroke)) return;
  switch (stroke.key) {
    case PlanKey::Left:
    case PlanKey::Right:
    case PlanKey::Up:
    case PlanKey::Down:
      return PressArrow(stroke);
    case PlanKey::Space:
      return PressSpace(stroke.shift);
    case PlanKey::Enter:
      return Raise(onEnterKey);
    case PlanKey::Escape:
      work_.check = false;
      box_.Drop();
      DropLine();
      return Repaint();
    case PlanKey::Backspace:
      return DropLine();  // the line has one point placed; without it there is no line
    case PlanKey::Undo:
      Undo();
      return;
    case PlanKey::Redo:
      Redo();
      return;
    default:
      return;
  }
}

}  // namespace tamo
