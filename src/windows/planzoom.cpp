#include <algorithm>
#include <cmath>

#include "windows/plancanvas.h"

// Zooming of the plan: about the pointer, about the cross hair, to the window.

namespace tamo {
namespace {

constexpr double kWheelZoom = 1.25;
constexpr int kLeastZoom = 10;  // per cent, by the wheel
constexpr int kMostZoom = 800;

}  // namespace

// What lies at `place` stays there, as far as the sheet reaches. The view moves in whole points: of
// several zooms about one place the first tells what lay there, so that no drift adds up.
void PlanCanvas::ZoomAbout(const QPointF& place, const std::function<void()>& zoom) {
  FinishScroll();
  const auto view = [this] {
    return QPoint(viewer_.ViewValue(ViewPart::Horizontal), viewer_.ViewValue(ViewPart::Vertical));
  };
  const bool again = held_.place == place && held_.view == view() && held_.page == viewer_.Page();
  const QPointF before = again ? held_.at : Sheet().TurnedAt(place);
  zoom();
  const QPointF after = Sheet().TurnedAt(place);
  Pan(before - after);
  held_ = {place, before, view(), viewer_.Page()};
}

void PlanCanvas::ZoomByWheel(const QPointF& place, double notches) {
  const int now = viewer_.Zoom();
  const int zoom = static_cast<int>(std::lround(now * std::pow(kWheelZoom, notches)));
  const int bound = std::clamp(zoom, std::min(now, kLeastZoom), std::max(now, kMostZoom));
  ZoomAbout(place, [&] { desk_.Dispatch([&] { viewer_.SetZoom(bound); }); });
}

void PlanCanvas::ZoomByKey(const std::function<void()>& zoom) {
  if (!zoom) return;
  const QPointF hair = Sheet().InWindow(viewer_.CrossHair());
  const bool seen = viewer_.Tool() != PlanTool::None && QRectF(viewport()->rect()).contains(hair);
  ZoomAbout(seen ? hair : QRectF(viewport()->rect()).center(), zoom);
}

void PlanCanvas::FitTo(double pixelsPerPoint) {
  const int zoom = static_cast<int>(pixelsPerPoint / PixelsPerPoint(100, 1) * 100);
  ZoomAbout({0, 0}, [&] { desk_.Dispatch([&] { viewer_.SetZoom(zoom); }); });
}

void PlanCanvas::FitPage() {
  const QSizeF page = Sheet().Page();
  FitTo(std::min(viewport()->width() / page.width(), viewport()->height() / page.height()));
}

void PlanCanvas::FitWidth() {
  FitTo(viewport()->width() / Sheet().Page().width());
}

}  // namespace tamo
