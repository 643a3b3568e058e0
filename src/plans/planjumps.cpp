#include "plans/planjumps.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace tamo {
namespace {

constexpr double kMargin = 36;  // points left and above of a place that is jumped to

PagePoint Turned(PagePoint at, PageSize size, int degrees) {
  switch ((degrees % 360 + 360) % 360 / 90) {
    case 1:
      return {size.height - at.y, at.x};
    case 2:
      return {size.width - at.x, size.height - at.y};
    case 3:
      return {at.y, size.width - at.x};
    default:
      return at;
  }
}

}  // namespace

QString OutsideInWords(const PlanTarget& target) {
  const auto out = [&](const QString& what) {
    const QString name =
        target.outside.isEmpty() ? QString() : QStringLiteral(" (%1)").arg(target.outside);
    return QStringLiteral("This leads to %1%2. Nothing outside of the plan is opened from here.")
        .arg(what, name);
  };
  switch (target.kind) {
    case PlanTarget::Kind::Web:
      return out(QStringLiteral("an address on the net"));
    case PlanTarget::Kind::File:
      return out(QStringLiteral("another file"));
    case PlanTarget::Kind::Program:
      return out(QStringLiteral("a program or file that would be started"));
    case PlanTarget::Kind::Script:
      return QStringLiteral("This would run a script of the plan. It is not run.");
    case PlanTarget::Kind::Other:
      return QStringLiteral("This asks for something that plans here don't do. It is left alone.");
    default:
      return QStringLiteral("This leads nowhere: the sheet that it means is not in the plan.");
  }
}

SheetPlace PlanJumps::Now() const {
  return {viewer_.Page(), viewer_.ViewValue(ViewPart::Horizontal),
          viewer_.ViewValue(ViewPart::Vertical)};
}

void PlanJumps::Show(const SheetPlace& place) {
  jumping_ = true;
  if (viewer_.Page() != place.page) viewer_.TurnPage(place.page);
  jumping_ = false;
  viewer_.SetViewValue(ViewPart::Horizontal, place.left);
  viewer_.SetViewValue(ViewPart::Vertical, place.top);
  last_ = Now();
  leafing_ = false;
}

void PlanJumps::GoToPage(int page) {
  PlanTarget target;
  target.kind = PlanTarget::Kind::Page;
  target.page = page;
  Follow(target);
}

void PlanJumps::Follow(const PlanTarget& target) {
  const bool inside = target.kind == PlanTarget::Kind::Page && target.page >= 1 &&
                      target.page <= viewer_.PageCount();
  if (!inside) {
    if (say) say(OutsideInWords(target));
    return;
  }
  trail_.Leave(Now());
  SheetPlace place = Now();
  place.page = target.page;
  if (target.placed) {
    const PagePoint at =
        Turned(target.at, viewer_.SizeOfPage(target.page), viewer_.ViewValue(ViewPart::Rotation));
    place.left = static_cast<int>(std::max(0.0, std::floor(at.x - kMargin)));
    place.top = static_cast<int>(std::max(0.0, std::floor(at.y - kMargin)));
  }
  Show(place);
}

void PlanJumps::Back() {
  if (const auto place = trail_.Back(Now())) return Show(*place);
  if (say) say(QStringLiteral("There is no jump to go back from."));
}

void PlanJumps::Forward() {
  if (const auto place = trail_.Forward(Now())) return Show(*place);
  if (say) say(QStringLiteral("There is no jump to go forward to."));
}

void PlanJumps::PageShown() {
  const std::shared_ptr<EnginePlan> plan = viewer_.OpenedPlan();
  if (plan != plan_.lock() || plan == nullptr || record_.Loading()) {
    plan_ = plan;
    trail_.Clear();
    leafing_ = false;
  } else if (!jumping_ && viewer_.Page() != last_.page) {
    const bool leaf = std::abs(viewer_.Page() - last_.page) == 1;
    if (!leaf || !leafing_) trail_.Leave({last_.page, Now().left, Now().top});
    leafing_ = leaf;
  }
  last_ = Now();
}

}  // namespace tamo
