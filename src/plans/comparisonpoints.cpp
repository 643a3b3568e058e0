#include <utility>

#include "plans/comparison.h"
#include "plans/pdfdraw.h"

// Two sheets are laid over each other by two points on each.

namespace tamo {

void Comparison::AskPoints() {
  const SheetsCompared* known = Known();
  if (!On() || known == nullptr || known->oldPage == 0) return;
  points_.asked = 0;
  points_.problem.clear();
  viewer_.onPointGiven = [this](PagePoint at) { TakePoint(at); };
  viewer_.SetPointNext(true);
  ShowAskedSheet();
}

void Comparison::EndPoints() {
  if (points_.asked < 0) return;
  points_.asked = -1;
  viewer_.SetPointNext(false);
  viewer_.onPointGiven = nullptr;
  pictures_.SetLayer(OverlayLayer::Both);
  viewer_.ShowAnew();
}

void Comparison::ShowAskedSheet() {
  pictures_.SetLayer(points_.asked % 2 == 0 ? OverlayLayer::Now : OverlayLayer::Old);
  viewer_.ShowAnew();
  Tell();
}

// The old sheet stands as it was laid last, so a place on it is known from there.
void Comparison::TakePoint(PagePoint at) {
  const SheetsCompared* known = Known();
  if (points_.asked < 0 || known == nullptr) return EndPoints();
  const bool old = points_.asked % 2 == 1;
  points_.at[points_.asked] = old ? known->alignment.fit.Back(at) : at;
  if (++points_.asked < 4) return ShowAskedSheet();
  const auto fit = FitByPoints(points_.at[1], points_.at[3], points_.at[0], points_.at[2]);
  if (!fit) {
    points_.problem = QStringLiteral("Two of the points are the same place. ");
    points_.asked = 0;
    return ShowAskedSheet();
  }
  EndPoints();
  SheetsCompared given = *known;
  given.alignment = {*fit, 0, false, true};
  given.aligned = given.looked = false;
  given.places.clear();
  given.limits.clear();
  known_[page_] = given;
  place_ = -1;
  Compare(false);
}

QString Comparison::AskedInWords() const {
  static const char* const asks[] = {
      "Point 1 of 2: press a place on the new sheet that both have, as a corner of the frame.",
      "Point 1 of 2: this is the old sheet; press the same place on it.",
      "Point 2 of 2: the new sheet again; press a second place, far from the first.",
      "Point 2 of 2: the old sheet; press that second place."};
  return points_.problem + QLatin1String(asks[points_.asked]) +
         QStringLiteral(" Arrows move the cross hair, Space presses, Escape leaves it.");
}

}  // namespace tamo
