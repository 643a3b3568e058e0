#include "plans/outlineboard.h"

#include <cmath>
#include <numbers>
#include <utility>

#include "plans/outline.h"
#include "plans/outlinerules.h"
#include "plans/scales.h"

namespace tamo {
namespace {

constexpr double kClickReach = 2;    // points the hand may shake within a click
constexpr double kSamePlace = 0.01;  // points; a press on the first corner closes the outline

Mark::Kind KindOf(PlanTool tool) {
  switch (tool) {
    case PlanTool::Polyline:
      return Mark::Kind::Polyline;
    case PlanTool::CutOut:
      return Mark::Kind::CutOut;
    case PlanTool::Perimeter:
      return Mark::Kind::Perimeter;
    default:
      return Mark::Kind::Area;
  }
}

}  // namespace

PagePoint OnEighthTurn(PagePoint from, PagePoint at) {
  const double dx = at.x - from.x;
  const double dy = at.y - from.y;
  const auto eighth = static_cast<int>(std::lround(std::atan2(dy, dx) / (std::numbers::pi / 4)));
  if (eighth % 4 == 0) return {at.x, from.y};
  if (eighth % 2 == 0) return {from.x, at.y};
  const double along = (std::abs(dx) + std::abs(dy)) / 2;
  return {from.x + std::copysign(along, dx), from.y + std::copysign(along, dy)};
}

double InPaperUnit(double points, PaperUnit unit) {
  const double inches = points / 72;
  if (unit == PaperUnit::Centimetres) return inches * 2.54;
  return unit == PaperUnit::Millimetres ? inches * 25.4 : inches;
}

// --- Drawing

PagePoint OutlineBoard::Straight(PagePoint at, bool shift) const {
  return shift && !outline_.Rectangle() && !outline_.InArc() ? OnEighthTurn(outline_.Last(), at)
                                                             : at;
}

bool OutlineBoard::ClosesAt(PagePoint at) const {
  return IsOutline(outline_.Kind()) && !outline_.Rectangle() && outline_.PlacesSet() >= 3 &&
         Distance(at, outline_.First()) <= kSamePlace;
}

void OutlineBoard::PressOutline(PlanTool tool, PagePoint at, bool shift) {
  if (!outline_.Active()) {
    Raise(onToolRefused, QString());
    outline_.Begin(KindOf(tool), tool == PlanTool::Rectangle, Page(), at);
  } else if (ClosesAt(at)) {
    return EndOutline();
  } else if (outline_.Points().size() < kMostMarkPoints - 1000) {
    outline_.Add(Straight(at, shift));
  }
  if (outline_.Rectangle() && outline_.PlacesSet() == 2) return EndOutline();
  MeasureOutline();
}

void OutlineBoard::MoveOutline(PagePoint at, bool shift) {
  outline_.Move(Straight(at, shift));
  MeasureOutline();
}

void OutlineBoard::ReleaseOutline(PagePoint at) {
  if (outline_.PlacesSet() != 1 || Distance(outline_.First(), at) <= kClickReach) return;
  if (outline_.Kind() != Mark::Kind::Polyline && !outline_.Rectangle())
    outline_.Begin(outline_.Kind(), true, outline_.Page(), outline_.First());
  outline_.Add(at);
  if (outline_.Rectangle()) return EndOutline();
  MeasureOutline();
}

bool OutlineBoard::TakeOutlineKey(PlanKey key) {
  if (!outline_.Active()) return false;
  switch (key) {
    case PlanKey::Enter:
      EndOutline();
      return true;
    case PlanKey::Escape:
      DropOutline();
      return true;
    case PlanKey::Backspace:
    case PlanKey::Undo:
      outline_.TakeBack();
      break;
    case PlanKey::Arc:
      outline_.TurnArc();
      break;
    default:
      return false;
  }
  Raise(onToolRefused, QString());
  MeasureOutline();
  return true;
}

void OutlineBoard::DropOutline() {
  if (!outline_.Active()) return;
  outline_.Drop();
  Raise(onToolRefused, QString());
  Repaint();
}

// --- Its measure

QString OutlineBoard::Measured(Mark::Kind kind, std::vector<PagePoint> points, bool running) {
  QString label = UnitInWords(Unit());
  double measure = InPaperUnit(OutlineLength(points, IsOutline(kind)), Unit());
  if (!IsSurface(kind)) {
    Raise(running ? onLineRunning : onLineMeasured, measure, label);
  } else {
    const double side = InPaperUnit(1, Unit());
    measure = OutlineArea(points) * side * side * (kind == Mark::Kind::CutOut ? -1 : 1);
    label.prepend(QStringLiteral("sq "));
    Raise(running ? onAreaRunning : onAreaMeasured, measure, label);
  }
  return LengthText(measure) + (label.isEmpty() ? QString() : QLatin1Char(' ') + label);
}

void OutlineBoard::MeasureOutline() {
  if (outline_.Active())
    outline_.text = Measured(outline_.Kind(), outline_.PointsWithPointer(), true);
  Repaint();
}

std::optional<Mark> OutlineBoard::OutlineInWork() const {
  if (!outline_.Active() || outline_.Page() != Page()) return std::nullopt;
  Mark mark = NewMark(outline_.Kind(), outline_.PointsWithPointer());
  mark.label = outline_.text;
  return mark;
}

// --- Its end

QString OutlineBoard::WhyNot(const std::vector<PagePoint>& points) const {
  const Mark::Kind kind = outline_.Kind();
  if (outline_.InArc())
    return QStringLiteral("The arc has no end yet: set it, or press Backspace to take it back.");
  QString why = WhyNoOutline(kind, points);
  if (!why.isEmpty() && IsOutline(kind) && FitsKind(kind, points.size()) && CrossesItself(points))
    why += QStringLiteral(" Backspace takes points back.");
  if (!why.isEmpty() || kind != Mark::Kind::CutOut) return why;
  return WhyNoCutOut(MarksAsDrawn(), outline_.Page(), points);
}

// What can't be ended stays in work, so that it can be mended.
void OutlineBoard::EndOutline() {
  const std::vector<PagePoint> points = outline_.Points();
  const QString why = WhyNot(points);
  Raise(onToolRefused, why);
  if (why.isEmpty()) return MakeMark(points);
  if (outline_.Rectangle() && outline_.PlacesSet() == 2) outline_.TakeBack();
  Repaint();
}

void OutlineBoard::MakeMark(std::vector<PagePoint> points) {
  // Made first: whoever is told may change the pen or pick another tool.
  Mark mark = NewMark(outline_.Kind(), points);
  mark.page = outline_.Page();
  const QString label = Measured(mark.kind, std::move(points), false);
  outline_.Drop();
  mark.label = label;
  AddMark(std::move(mark));
}

}  // namespace tamo
