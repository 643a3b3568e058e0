#include "plans/markhand.h"

#include <algorithm>
#include <utility>

#include "plans/carriedmarks.h"
#include "plans/marklabel.h"
#include "plans/markreach.h"
#include "plans/marktie.h"
#include "plans/outline.h"
#include "plans/outlinerules.h"
#include "plans/pdfdraw.h"
#include "plans/planway.h"

namespace tamo {
namespace {

constexpr double kReachPixels = 8;
constexpr double kMostReach = 24;  // points, when the whole sheet is in sight

}  // namespace

const Mark* MarkHand::Chosen() const {
  return name_.isEmpty() ? nullptr : viewer_.FindMark(name_);
}

double MarkHand::Reach() const {
  return std::min(kMostReach, kReachPixels / (viewer_.Zoom() / 100.0 * 96 / 72));
}

void MarkHand::Tell(const QString& words) {
  if (viewer_.onToolRefused) viewer_.onToolRefused(words);
}

// --- Choosing

// A plan that is read anew may have the mark with fewer points.
int MarkHand::Point() const {
  const Mark* mark = Chosen();
  return mark != nullptr && point_ < static_cast<int>(mark->points.size()) ? point_ : -1;
}

void MarkHand::Forget() {
  name_.clear();
  shown_.clear();
  point_ = -1;
  nudging_ = false;
  pressed_.reset();
  held_.reset();
}

bool MarkHand::MayChoose() {
  if (!viewer_.WorkFrom().has_value()) return true;
  Tell(QStringLiteral("End what is drawn, or give it up with Escape, before a mark is chosen."));
  return false;
}

bool MarkHand::Choose(const QString& name) {
  const Mark* mark = viewer_.FindMark(name);
  if (mark == nullptr || !MayChoose()) return false;
  const int page = mark->page;
  if (viewer_.Tool() != PlanTool::None) viewer_.PickTool(PlanTool::None);
  if (name_ != name) point_ = -1;
  name_ = name;
  nudging_ = false;
  held_.reset();
  if (viewer_.Page() != page) viewer_.TurnPage(page);
  TellChosen();
  return true;
}

void MarkHand::LetGo() {
  if (name_.isEmpty()) return;
  name_.clear();
  shown_.clear();
  point_ = -1;
  nudging_ = false;
  held_.reset();
  Tell(QString());
  TellChosen();
}

void MarkHand::Show(const std::vector<QString>& names) {
  shown_ = QSet<QString>(names.begin(), names.end());
  if (names.size() > 1)
    Tell(InWords() +
         QStringLiteral(". %1 marks of its line are shown; F7 on the line takes the next.")
             .arg(names.size()));
  if (viewer_.onMarksChanged) viewer_.onMarksChanged();
}

void MarkHand::TellChosen() {
  if (const Mark* mark = Chosen()) {
    const QString point =
        QStringLiteral("Point %1 of %2: arrows move it.").arg(Point() + 1).arg(mark->points.size());
    Tell(InWords() + QStringLiteral(". ") +
         (Point() < 0 ? QStringLiteral("Tab: its points, F2: its name.") : point));
  }
  if (viewer_.onMarkChosen) viewer_.onMarkChosen();
  if (viewer_.onMarksChanged) viewer_.onMarksChanged();
}

QString MarkHand::InWords() const {
  const Mark* mark = Chosen();
  if (mark == nullptr) return {};
  QString words = KindInWords(mark->kind);
  if (!mark->title.isEmpty()) words += QStringLiteral(" \"%1\"").arg(mark->title);
  words += QStringLiteral(" on sheet %1").arg(mark->page);
  if (!mark->label.isEmpty() && mark->kind != Mark::Kind::Legend)
    words += QStringLiteral(": ") + mark->label;
  return words;
}

void MarkHand::ChooseAt(PagePoint at) {
  const std::vector<QString> names =
      MarksAt(viewer_.MarksAsDrawn(), viewer_.Page(), at, Reach(), viewer_.MarkerSize());
  if (names.empty()) return LetGo();
  const auto chosen = std::find(names.begin(), names.end(), name_);
  const bool last = chosen == names.end() || std::next(chosen) == names.end();
  Choose(last ? names.front() : *std::next(chosen));
}

void MarkHand::Step(int by) {
  const std::vector<Mark>& marks = viewer_.MarksAsDrawn();
  const std::vector<size_t> order = MarksInOrder(marks);
  if (order.empty()) return Tell(QStringLiteral("There are no marks on this plan."));
  const auto count = static_cast<int>(order.size());
  int at = by > 0 ? -1 : count;
  for (int i = 0; i < count; ++i) {
    const Mark& mark = marks[order[static_cast<size_t>(i)]];
    if (mark.name == name_) {
      at = i;
      break;
    }
    // With none chosen, from the sheet in sight on.
    if (Chosen() == nullptr && by > 0 && mark.page < viewer_.Page()) at = i;
    if (Chosen() == nullptr && by < 0 && mark.page <= viewer_.Page()) at = i + 1;
  }
  Choose(marks[order[static_cast<size_t>(((at + by) % count + count) % count)]].name);
}

// --- Changing

// With Shift in steps of 45 degrees from the point before it.
void MarkHand::Move(PagePoint at, bool shift) {
  if (!held_) return;
  const Mark* mark = Chosen();
  if (mark == nullptr || Point() < 0 || mark->page != viewer_.Page()) return held_.reset();
  const auto& points = mark->points;
  if (shift && points.size() > 1) {
    const size_t before = point_ > 0              ? static_cast<size_t>(point_ - 1)
                          : IsOutline(mark->kind) ? points.size() - 1
                                                  : 1;
    at = OnEighthTurn(points[before], at);
  }
  held_ = Moved(*mark, point_, {at.x - grip_.x, at.y - grip_.y});
  if (viewer_.onMarksChanged) viewer_.onMarksChanged();
}

Mark MarkHand::Moved(const Mark& mark, int point, PagePoint to) const {
  Mark moved = mark;
  const PageSize size = viewer_.SizeOfPage(mark.page);
  moved.points[static_cast<size_t>(point)] = {std::clamp(to.x, 0.0, size.width),
                                              std::clamp(to.y, 0.0, size.height)};
  moved.label = MovedLabel(mark, moved.points, [this](Mark::Kind kind, const auto& points) {
    return viewer_.LabelInForce(kind, points);
  });
  DropDrawingChanged(moved);
  return moved;
}

// Why a mark can't stand as it was moved. An area keeps the cut-outs that it has.
QString MarkHand::WhyNot(const Mark& moved) const {
  QString why = WhyNoOutline(moved.kind, moved.points);
  if (why.isEmpty() && moved.kind == Mark::Kind::CutOut)
    why = WhyNoCutOut(viewer_.MarksAsDrawn(), moved.page, moved.points, moved.name);
  const Mark* mark = Chosen();
  if (!why.isEmpty() || moved.kind != Mark::Kind::Area || mark == nullptr) return why;
  for (const Mark& cut : viewer_.MarksAsDrawn()) {
    if (cut.kind == Mark::Kind::CutOut && cut.page == moved.page &&
        HoldsOutline(mark->points, cut.points, kOverEdge) &&
        !HoldsOutline(moved.points, cut.points, kOverEdge))
      return QStringLiteral("A cut-out would lie outside of its area.");
  }
  return {};
}

// A mark that another program drew askew can still be named and coloured.
bool MarkHand::Change(const Mark& mark, bool joinLast) {
  const Mark* now = Chosen();
  const bool moves = now != nullptr && now->points != mark.points;
  const QString why = moves ? WhyNot(mark) : QString();
  if (!why.isEmpty()) {
    Tell(why + QStringLiteral(" The mark stays as it was."));
    return false;
  }
  if (!viewer_.MayMark()) return false;
  viewer_.ChangeMark(mark, joinLast);
  TellChosen();
  return true;
}

void MarkHand::Rename(const QString& title) {
  if (const Mark* mark = Chosen()) {
    Mark named = *mark;
    named.title = TitleOf(title);
    nudging_ = false;
    Change(named, false);
  }
}

void MarkHand::Recolour(const QString& code) {
  const Mark* mark = Chosen();
  if (mark == nullptr || !IsColourCode(code)) return;
  Mark coloured = *mark;
  coloured.colour = code;
  nudging_ = false;
  Change(coloured, false);
}

void MarkHand::Delete() {
  if (Chosen() == nullptr || !viewer_.MayMark()) return;
  const std::optional<MarkTie> tie = TieOfText(Chosen()->kept);
  const QString name = std::exchange(name_, QString());
  shown_.clear();
  point_ = -1;
  nudging_ = false;
  held_.reset();
  viewer_.RemoveMark(name);
  TellChosen();
  Tell(
      tie ? QStringLiteral("The mark is gone; %1 keeps what was entered.").arg(tie->place.InWords())
          : QString());
}

// --- The pointer and the keys

void MarkHand::Press(PagePoint at) {
  pressed_ = at;
  const Mark* mark = Chosen();
  if (mark == nullptr || mark->page != viewer_.Page()) return;
  const bool whole = IsCount(mark->kind) || IsLabel(mark->kind);
  const int point = whole ? (DistanceToMark(*mark, at, viewer_.MarkerSize()) <= Reach() ? 0 : -1)
                          : PointAt(*mark, at, Reach());
  if (point < 0) return;
  point_ = point;
  nudging_ = false;
  held_ = *mark;
  const PagePoint from = mark->points[static_cast<size_t>(point)];
  grip_ = whole ? PagePoint{at.x - from.x, at.y - from.y} : PagePoint{};
  viewer_.Snap().Follow();
  TellChosen();
}

void MarkHand::Release(PagePoint at, bool shift) {
  const std::optional<PagePoint> pressed = std::exchange(pressed_, std::nullopt);
  if (!pressed) return;
  const bool click = Distance(*pressed, at) <= Reach() / 4;
  if (!held_) {
    if (click) ChooseAt(at);
    if (click && Chosen() == nullptr && viewer_.onPlainClick) viewer_.onPlainClick(at);
    return;
  }
  if (!click) Move(at, shift);
  const std::optional<Mark> moved = std::exchange(held_, std::nullopt);
  viewer_.Snap().Follow();
  if (!click && moved) Change(*moved, false);
  if (viewer_.onMarksChanged) viewer_.onMarksChanged();
}

void MarkHand::NextPoint() {
  const Mark* mark = Chosen();
  nudging_ = false;
  point_ = (Point() + 1) % static_cast<int>(mark->points.size());
  TellChosen();
}

bool MarkHand::Nudge(const PlanStroke& stroke) {
  const Mark* mark = Chosen();
  const PagePoint way = DirectionOf(stroke.key);
  const int point = Point();
  if ((way.x == 0 && way.y == 0) || point < 0) return false;
  const double step = stroke.ctrl ? kFineStep : kCoarseStep;
  const PagePoint from = mark->points[static_cast<size_t>(point)];
  const Mark moved = Moved(*mark, point, {from.x + way.x * step, from.y + way.y * step});
  if (moved.points == mark->points) return true;  // at the edge of the sheet
  const bool joins = std::exchange(nudging_, true);
  if (!Change(moved, joins)) nudging_ = joins;
  return true;
}

bool MarkHand::TakeKey(const PlanStroke& stroke) {
  if (stroke.key == PlanKey::No || stroke.key == PlanKey::MarkBefore) {
    if (MayChoose()) Step(stroke.key == PlanKey::No ? 1 : -1);
    return true;
  }
  // What is taken back or brought back is a step of its own.
  if (stroke.key == PlanKey::Undo || stroke.key == PlanKey::Redo) nudging_ = false;
  const Mark* mark = Chosen();
  if (mark == nullptr || viewer_.Tool() != PlanTool::None) return false;
  // Of a mark that is not in sight nothing is moved or removed by a key.
  if (mark->page != viewer_.Page() && stroke.key != PlanKey::Escape) {
    if (stroke.key == PlanKey::Delete)
      Tell(QStringLiteral("The chosen mark stands on sheet %1: turn to it, or choose another one.")
               .arg(mark->page));
    return stroke.key == PlanKey::Delete;
  }
  switch (stroke.key) {
    case PlanKey::NextSnap:
      NextPoint();
      return true;
    case PlanKey::Delete:
      Delete();
      return true;
    case PlanKey::Escape:
      LetGo();
      return true;
    default:
      return Nudge(stroke);
  }
}

std::vector<size_t> MarksInOrder(const std::vector<Mark>& marks) {
  std::vector<size_t> order(marks.size());
  for (size_t i = 0; i < order.size(); ++i) order[i] = i;
  std::stable_sort(order.begin(), order.end(),
                   [&](size_t a, size_t b) { return marks[a].page < marks[b].page; });
  return order;
}

}  // namespace tamo
