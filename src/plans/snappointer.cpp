#include "plans/snappointer.h"

#include <algorithm>

#include "plans/pdfdraw.h"

namespace tamo {
namespace {

constexpr double kReachPixels = 10;
constexpr double kMostReach = 36;  // points, when the whole sheet is in sight

bool Same(PagePoint a, PagePoint b) {
  return a.x == b.x && a.y == b.y;
}

}  // namespace

SnapPointer::SnapPointer(PdfDraw& viewer)
    : viewer_(viewer), read_([this] {
        TellOfSheet();
        viewer_.Same().GoOn();
      }) {
  lines_.onRead = read_.Teller();
}

void SnapPointer::Turn(bool on) {
  on_ = on;
  hits_.clear();
  Tell(on ? QStringLiteral("Snap is on: the cross hair takes the ends, crossings and middles of "
                           "lines. Alt holds it off, Tab takes the next place.")
          : QStringLiteral("Snap is off."));
  told_.clear();
  Follow();
}

bool SnapPointer::Active() const {
  const PlanTool tool = viewer_.Tool();
  const std::optional<Mark>& held = viewer_.Hand().Held();
  if (held.has_value()) return on_ && !IsCount(held->kind) && !IsLabel(held->kind);
  return on_ && !viewer_.Box().Asked() &&
         (tool == PlanTool::Measuring || PdfDraw::DrawsOutlines(tool));
}

// Tools come and go with every entry of the takeoff; the lines stay as long as the page.
void SnapPointer::Follow() {
  hits_.clear();
  pointed_ = {-1e9, -1e9};
  if (Active()) {
    lines_.Want(viewer_.OpenedPlan(), viewer_.Page());
  } else {
    lines_.KeepOnly(viewer_.OpenedPlan(), viewer_.Page());
  }
}

double SnapPointer::Reach() const {
  return std::min(kMostReach, kReachPixels / (viewer_.Zoom() / 100.0 * 96 / 72));
}

std::vector<SnapLine> SnapPointer::OwnLines() const {
  std::vector<SnapLine> lines;
  const auto add = [&](const std::vector<PagePoint>& points, bool closed) {
    for (size_t i = 0; i + 1 < points.size(); ++i) lines.push_back({{points[i], points[i + 1]}});
    if (closed && points.size() > 2) lines.push_back({{points.back(), points.front()}});
  };
  for (const Mark& mark : viewer_.MarksAsDrawn()) {
    const bool held = viewer_.Hand().Holds() && viewer_.Hand().Held()->name == mark.name;
    if (mark.page == viewer_.Page() && !held) add(mark.points, IsOutline(mark.kind));
  }
  if (std::optional<Mark> work = viewer_.OutlineInWork()) {
    work->points.pop_back();
    // A lone first corner is a place, too.
    if (work->points.size() == 1) work->points.push_back(work->points.front());
    add(work->points, false);
  }
  return lines;
}

std::vector<SnapHit> SnapPointer::Near(PagePoint at, double reach) const {
  static const SnapIndex kNothing{{}};
  const std::shared_ptr<const SnapIndex> index = lines_.Index();
  return (index != nullptr ? *index : kNothing).Near(at, reach, viewer_.WorkFrom(), OwnLines());
}

PagePoint SnapPointer::Point(PagePoint at, bool heldOff) {
  if (!Active() || heldOff) {
    hits_.clear();
    pointed_ = {-1e9, -1e9};
    return at;
  }
  if (!Same(at, pointed_)) {
    lines_.Want(viewer_.OpenedPlan(), viewer_.Page());
    TellOfLines();
    hits_ = Near(at, Reach());
    chosen_ = 0;
    pointed_ = at;
  }
  return hits_.empty() ? at : hits_[chosen_].at;
}

std::optional<SnapHit> SnapPointer::Sign() const {
  if (hits_.empty() || !Active() || !Same(viewer_.CrossHair(), hits_[chosen_].at))
    return std::nullopt;
  return hits_[chosen_];
}

bool SnapPointer::TakeKey(PlanKey key) {
  if (key == PlanKey::Snap) {
    Turn(!on_);
    return true;
  }
  return key == PlanKey::NextSnap && Next();
}

// From one place to the next; from wherever the arrows have moved the cross hair, to the best
// there.
bool SnapPointer::Next() {
  if (!Active()) return false;
  lines_.Want(viewer_.OpenedPlan(), viewer_.Page());
  if (lines_.Reading()) {
    Tell(QStringLiteral("The lines of the sheet are being read: press Tab again in a moment."));
    return true;
  }
  TellOfLines();
  if (Sign().has_value()) {
    chosen_ = (chosen_ + 1) % hits_.size();
  } else {
    hits_ = Near(viewer_.CrossHair(), 2 * Reach());
    chosen_ = 0;
  }
  if (hits_.empty()) return false;
  viewer_.Move(hits_[chosen_].at, false);
  return true;
}

std::vector<SnapHit> SnapPointer::AllNear(PagePoint at, int patience) {
  lines_.Want(viewer_.OpenedPlan(), viewer_.Page());
  lines_.Wait(patience);
  return Near(at, Reach());
}

void SnapPointer::TellOfSheet(int patience) {
  if (patience > 0) lines_.Wait(patience);
  if (lines_.TakeNews() && viewer_.onSheetRead) viewer_.onSheetRead();
}

void SnapPointer::Tell(const QString& words) {
  if (viewer_.onToolRefused) viewer_.onToolRefused(words);
}

void SnapPointer::TellOfLines() {
  const QString problem = lines_.Problem();
  if (problem == told_) return;
  told_ = problem;
  if (!problem.isEmpty()) Tell(problem);
}

}  // namespace tamo
