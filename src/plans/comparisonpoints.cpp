#include <utility>

#include "plans/comparison.h"
#include "plans/pdfdraw.h"

// Two sheets are laid over each other by two points on each.

namespace tamo {

void Comparison::AskPoints() {
  const SheetsCompared* known = Known();
  if (!On() || known == nullptr || known->oldPage == 0) return;
  points_.Ask();
  viewer_.onPointGiven = [this](PagePoint at) { TakePoint(at); };
  viewer_.SetPointNext(true);
  ShowAskedSheet();
}

void Comparison::EndPoints() {
  if (!points_.Asked()) return;
  points_.Leave();
  viewer_.SetPointNext(false);
  viewer_.onPointGiven = nullptr;
  pictures_.SetLayer(OverlayLayer::Both);
  viewer_.ShowAnew();
}

void Comparison::ShowAskedSheet() {
  pictures_.SetLayer(points_.OnOldSheet() ? OverlayLayer::Old : OverlayLayer::Now);
  viewer_.ShowAnew();
  Tell();
}

// The old sheet stands as it was laid last, so a place on it is known from there.
void Comparison::TakePoint(PagePoint at) {
  const SheetsCompared* known = Known();
  if (!points_.Asked() || known == nullptr) return EndPoints();
  const auto fit = points_.Take(points_.OnOldSheet() ? known->alignment.fit.Back(at) : at);
  if (!fit) return ShowAskedSheet();
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

}  // namespace tamo
