#include "plans/carriedmarks.h"

#include <algorithm>

namespace tamo {
namespace {

constexpr double kOff = 2;  // points that a mark may stand off the sheet
constexpr double kBeside = 9;
constexpr char kFlag[] = " - check: the drawing changed here";
constexpr char kOwnFlag[] = "Check: the drawing changed here";  // of a circle without a title

bool Inside(PagePoint at, const PageBox& box) {
  return at.x >= box.left && at.x <= box.right && at.y >= box.top && at.y <= box.bottom;
}

// Whether a place lies inside an outline.
bool Surrounds(const std::vector<PagePoint>& outline, PagePoint at) {
  bool inside = false;
  for (size_t i = 0, j = outline.size() - 1; i < outline.size(); j = i++) {
    const PagePoint a = outline[i];
    const PagePoint b = outline[j];
    if ((a.y > at.y) != (b.y > at.y) && at.x < (b.x - a.x) * (at.y - a.y) / (b.y - a.y) + a.x)
      inside = !inside;
  }
  return inside;
}

// A dimension stands beside the line that it is of.
PageBox Around(const PageBox& box) {
  return {box.left - kBeside, box.top - kBeside, box.right + kBeside, box.bottom + kBeside};
}

// A legend says what others come to, so it is out of date at most.
void SayDrawingChanged(Mark& mark) {
  if (IsLabel(mark.kind) || SaysDrawingChanged(mark)) return;
  const QString flag = QLatin1String(kFlag);
  if (!IsCount(mark.kind)) {
    mark.label += flag;
    return;
  }
  mark.title = mark.title.isEmpty() ? QLatin1String(kOwnFlag)
                                    : mark.title.left(kLongestTitle - flag.size()) + flag;
}

QString InWords(const Mark& mark, const QString& what) {
  const QString label = mark.label.isEmpty()
                            ? KindInWords(mark.kind)
                            : QStringLiteral("%1 %2").arg(KindInWords(mark.kind), mark.label);
  return QStringLiteral("%1 (%2)").arg(label, what);
}

bool IsThere(const std::vector<Mark>& marks, const Mark& mark) {
  return std::any_of(marks.begin(), marks.end(),
                     [&](const Mark& other) { return other.name == mark.name; });
}

}  // namespace

bool MarkTouches(const Mark& mark, const PageBox& box) {
  if (std::any_of(mark.points.begin(), mark.points.end(),
                  [&](PagePoint at) { return Inside(at, box); }))
    return true;
  const size_t lines = mark.points.empty()    ? 0
                       : IsOutline(mark.kind) ? mark.points.size()
                                              : mark.points.size() - 1;
  for (size_t i = 0; i < lines; ++i) {
    PageLine line = {mark.points[i], mark.points[(i + 1) % mark.points.size()]};
    if (CutLine(line, box)) return true;
  }
  return IsOutline(mark.kind) && Surrounds(mark.points, box.Middle());
}

bool SaysDrawingChanged(const Mark& mark) {
  const QLatin1String flag(kFlag);
  return mark.label.endsWith(flag) || mark.title.endsWith(flag) ||
         mark.title == QLatin1String(kOwnFlag);
}

void DropDrawingChanged(Mark& mark) {
  const QLatin1String flag(kFlag);
  for (QString* text : {&mark.label, &mark.title}) {
    if (text->endsWith(flag)) text->chop(flag.size());
  }
  if (mark.title == QLatin1String(kOwnFlag)) mark.title.clear();
}

CarriedMarks CarryMarks(const std::vector<Mark>& old, const SheetsCompared& known, PageSize sheet,
                        const std::vector<Mark>& now) {
  CarriedMarks carried;
  const PageBox whole = {-kOff, -kOff, sheet.width + kOff, sheet.height + kOff};
  for (const Mark& mark : old) {
    if (mark.page != known.oldPage || mark.kind == Mark::Kind::Total) continue;
    if (IsThere(now, mark)) {
      ++carried.there;
      continue;
    }
    Mark moved = mark;
    moved.page = known.page;
    for (PagePoint& at : moved.points) at = known.alignment.fit.To(at);
    if (!std::all_of(moved.points.begin(), moved.points.end(),
                     [&](PagePoint at) { return Inside(at, whole); })) {
      ++carried.outside;
      continue;
    }
    const auto changed = std::find_if(
        known.places.begin(), known.places.end(),
        [&](const ChangedPlace& place) { return MarkTouches(moved, Around(place.box)); });
    if (changed != known.places.end()) {
      carried.changed += InWords(mark, changed->words);
      SayDrawingChanged(moved);
    }
    carried.marks.push_back(std::move(moved));
  }
  return carried;
}

}  // namespace tamo
