#include <algorithm>
#include <cmath>
#include <utility>

#include "plans/drawingboard.h"

namespace tamo {

// The tools of the drawing board: what the mouse and the keys do on the plan.

namespace {

constexpr double coarseStep = 9;   // an eighth of an inch of paper
constexpr double fineStep = 0.5;   // a 144th
constexpr double scrollStep = 36;  // half an inch
constexpr double clickReach = 2;   // points the hand may shake within a click
constexpr double quarter = 0.78539816339744830962;

template <typename Event, typename... Args>
void Raise(const Event& event, Args&&... args) {
  if (event) event(std::forward<Args>(args)...);
}

bool Sane(PagePoint at) {
  return std::isfinite(at.x) && std::isfinite(at.y) && std::abs(at.x) < 1e6 && std::abs(at.y) < 1e6;
}

PagePoint Direction(PlanKey key) {
  switch (key) {
    case PlanKey::Left:
      return {-1, 0};
    case PlanKey::Right:
      return {1, 0};
    case PlanKey::Up:
      return {0, -1};
    case PlanKey::Down:
      return {0, 1};
    default:
      return {0, 0};
  }
}

}  // namespace

void DrawingBoard::PickTool(int mode) {
  if (mode < NoTool || mode > Counting) return;
  DropLine();
  Raise(onBeforeModeChange);
  tool_ = mode;
  Raise(onModeChanged, mode);
  Repaint();
}

// With Shift the line keeps to steps of 45 degrees: it ends at the foot of the pointer on the
// nearest of those directions.
PagePoint DrawingBoard::LineEnd(PagePoint at, bool shift) const {
  if (!shift) return at;
  const double dx = at.x - from_.x;
  const double dy = at.y - from_.y;
  const auto eighth = static_cast<int>(std::lround(std::atan2(dy, dx) / quarter));
  if (eighth % 4 == 0) return {at.x, from_.y};
  if (eighth % 2 == 0) return {from_.x, at.y};
  const double along = (std::abs(dx) + std::abs(dy)) / 2;
  return {from_.x + std::copysign(along, dx), from_.y + std::copysign(along, dy)};
}

void DrawingBoard::BeginLine(PagePoint at) {
  from_ = at;
  to_ = at;
  Repaint();
}

void DrawingBoard::DropLine() {
  if (line_ == LineState::None) return;
  line_ = LineState::None;
  Repaint();
}

void DrawingBoard::EndLine() {
  line_ = LineState::None;
  if (checkNext_) {
    checkNext_ = false;
    Repaint();
    Raise(onLineChecked, PaperLength());
    return;
  }
  double length = PaperLength();
  QString label = PaperUnit();
  Mark mark;
  mark.kind = Mark::Kind::Line;
  mark.page = page_;
  mark.points = {from_, to_};
  mark.colour = colour_;
  mark.width = width_;
  Raise(onLineMeasured, length, label);
  mark.label = LengthText(length);
  if (!label.isEmpty()) mark.label += QLatin1Char(' ') + label;
  Add(std::move(mark));
}

void DrawingBoard::AddCircle(PagePoint at) {
  Mark mark;
  mark.kind = Mark::Kind::Circle;
  mark.page = page_;
  mark.points = {at};
  mark.colour = colour_;
  mark.width = width_;
  Add(std::move(mark));
}

void DrawingBoard::Press(PagePoint at, bool shift) {
  if (!Sane(at)) return;
  crossHair_ = at;
  Raise(onMousePressed);
  if (boxNext_) {
    boxing_ = true;
    boxFrom_ = at;
    return;
  }
  if (tool_ == Counting) AddCircle(at);
  if (tool_ != Measuring) return;
  if (line_ == LineState::Placed) {
    to_ = LineEnd(at, shift);
    line_ = LineState::Closing;
    Repaint();
  } else {
    line_ = LineState::Dragging;
    BeginLine(at);
  }
}

void DrawingBoard::Move(PagePoint at, bool shift) {
  if (!Sane(at)) return;
  crossHair_ = at;
  if (boxing_) return StretchBox(at);
  if (line_ != LineState::None) to_ = LineEnd(at, shift);
  if (tool_ != NoTool) Repaint();
}

void DrawingBoard::Release(PagePoint at, bool shift) {
  if (!Sane(at)) return;
  if (boxing_) return DrawBox(boxFrom_, at);
  if (line_ == LineState::None) return;
  to_ = LineEnd(at, shift);
  if (line_ == LineState::Dragging && Distance(from_, to_) <= clickReach) {
    to_ = from_;
    line_ = LineState::Placed;
    Repaint();
  } else if (line_ != LineState::Placed) {
    EndLine();
  }
}

void DrawingBoard::DrawLine(PagePoint from, PagePoint to) {
  if (!Sane(from) || !Sane(to)) return;
  if (tool_ != Measuring) PickTool(Measuring);
  DropLine();
  Press(from, false);
  Move(to, false);
  if (line_ != LineState::None) EndLine();
}

void DrawingBoard::StretchBox(PagePoint to) {
  box_ = DrawnBox{page_,
                  {std::min(boxFrom_.x, to.x), std::min(boxFrom_.y, to.y)},
                  {std::max(boxFrom_.x, to.x), std::max(boxFrom_.y, to.y)}};
  Repaint();
}

void DrawingBoard::DrawBox(PagePoint from, PagePoint to) {
  if (!Sane(from) || !Sane(to)) return;
  boxNext_ = false;
  boxing_ = false;
  boxFrom_ = from;
  StretchBox(to);
  Raise(onBoxDrawn);
}

void DrawingBoard::PlaceCircle(PagePoint at) {
  if (tool_ != Counting) PickTool(Counting);
  Press(at, false);
  Release(at, false);
}

void DrawingBoard::MoveCrossHair(PlanKey key, bool ctrl, bool shift) {
  const PagePoint way = Direction(key);
  const double step = ctrl ? fineStep : coarseStep;
  const PageSize size = SizeOfPage(page_);
  Move({std::clamp(crossHair_.x + way.x * step, 0.0, size.width),
        std::clamp(crossHair_.y + way.y * step, 0.0, size.height)},
       shift);
}

// Space is the mouse button of the keyboard: it places the first point, then the second.
void DrawingBoard::PressSpace(bool shift) {
  if (tool_ == NoTool) return;
  Press(crossHair_, shift);
  if (line_ == LineState::Dragging) line_ = LineState::Placed;
  if (line_ == LineState::Closing) EndLine();
}

void DrawingBoard::Key(const PlanStroke& stroke) {
  switch (stroke.key) {
    case PlanKey::Left:
    case PlanKey::Right:
    case PlanKey::Up:
    case PlanKey::Down:
      if (tool_ == NoTool) {
        const PagePoint way = Direction(stroke.key);
        ScrollBy(way.x * scrollStep, way.y * scrollStep);
      } else {
        MoveCrossHair(stroke.key, stroke.ctrl, stroke.shift);
      }
      break;
    case PlanKey::Space:
      PressSpace(stroke.shift);
      break;
    case PlanKey::Enter:
      Raise(onEnterKey);
      break;
    case PlanKey::Escape:
      checkNext_ = false;
      boxNext_ = false;
      boxing_ = false;
      box_.reset();
      DropLine();
      Repaint();
      break;
    case PlanKey::Backspace:
      DropLine();  // the line has one point placed; without it there is no line
      break;
    case PlanKey::Undo:
      Undo();
      break;
    case PlanKey::Redo:
      Redo();
      break;
  }
}

bool PlanStrokeFromName(const QString& name, PlanStroke& stroke) {
  static const std::pair<const char*, PlanKey> keys[] = {
      {"Left", PlanKey::Left},     {"Right", PlanKey::Right},         {"Up", PlanKey::Up},
      {"Down", PlanKey::Down},     {"Space", PlanKey::Space},         {"Enter", PlanKey::Enter},
      {"Escape", PlanKey::Escape}, {"Backspace", PlanKey::Backspace}, {"Undo", PlanKey::Undo},
      {"Redo", PlanKey::Redo}};
  PlanStroke read;
  QString rest = name.trimmed();
  for (;;) {
    if (rest.startsWith(QLatin1String("Shift+"))) {
      read.shift = true;
      rest.remove(0, 6);
    } else if (rest.startsWith(QLatin1String("Ctrl+"))) {
      read.ctrl = true;
      rest.remove(0, 5);
    } else {
      break;
    }
  }
  if (read.ctrl && rest == QLatin1String("Z")) rest = QStringLiteral("Undo");
  if (read.ctrl && rest == QLatin1String("Y")) rest = QStringLiteral("Redo");
  for (const auto& [text, key] : keys) {
    if (rest == QLatin1String(text)) {
      read.key = key;
      stroke = read;
      return true;
    }
  }
  return false;
}

}  // namespace tamo
