#include "plans/outlinerules.h"

#include "plans/outline.h"

namespace tamo {
namespace {

constexpr double kLeastSurface = 0.5;  // square points; less is a slip of the hand

}  // namespace

QString WhyNoOutline(Mark::Kind kind, const std::vector<PagePoint>& points) {
  if (!FitsKind(kind, points.size()))
    return IsOutline(kind) ? QStringLiteral("It takes at least three corners: set more of them.")
                           : QStringLiteral("It takes at least two points: set more of them.");
  if (!IsOutline(kind)) return {};
  if (CrossesItself(points))
    return QStringLiteral("The outline crosses or touches itself, so it has no certain size.");
  if (OutlineArea(points) < kLeastSurface)
    return QStringLiteral("The outline holds nothing: set its corners apart.");
  return {};
}

QString WhyNoCutOut(const std::vector<Mark>& marks, int page, const std::vector<PagePoint>& points,
                    const QString& itself) {
  bool inside = false;
  for (const Mark& mark : marks) {
    if (mark.page != page || (!itself.isEmpty() && mark.name == itself)) continue;
    if (mark.kind == Mark::Kind::Area)
      inside = inside || HoldsOutline(mark.points, points, kOverEdge);
    if (mark.kind == Mark::Kind::CutOut && (HoldsPlace(mark.points, RoomiestPlace(points), 0) ||
                                            HoldsPlace(points, RoomiestPlace(mark.points), 0)))
      return QStringLiteral("This place is cut out already: it would be taken off twice.");
  }
  if (inside) return {};
  return QStringLiteral(
      "A cut-out lies inside an area that is drawn already, and this one lies in none. Draw the "
      "area first, or set the corners inside it.");
}

}  // namespace tamo
