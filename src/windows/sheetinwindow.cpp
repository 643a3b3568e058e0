#include "windows/sheetinwindow.h"

#include <algorithm>
#include <cmath>

namespace tamo {
namespace {

int QuartersOf(int degrees) {
  const int quarters = static_cast<int>(std::lround(degrees / 90.0));
  return (quarters % 4 + 4) % 4;
}

QTransform Turning(PageSize page, int turn) {
  switch (turn) {
    case 90:
      return {0, 1, -1, 0, page.height, 0};
    case 180:
      return {-1, 0, 0, -1, page.width, page.height};
    case 270:
      return {0, -1, 1, 0, 0, page.width};
    default:
      return {};
  }
}

// Where a page of `whole` pixels begins in a window of `shown` ones; `place` of it stands first.
double Begin(double whole, double shown, double place) {
  return whole <= shown ? std::floor((shown - whole) / 2) : -std::clamp(place, 0.0, whole - shown);
}

}  // namespace

SheetInWindow::SheetInWindow(const SheetView& sheets, const QSizeF& window)
    : page_(sheets.Page()),
      zoom_(sheets.Zoom()),
      scale_(PixelsPerPoint(zoom_, 1)),
      turn_(QuartersOf(sheets.ViewValue(ViewPart::Rotation)) * 90),
      turning_(Turning(sheets.SizeOfPage(page_), turn_)),
      window_(window) {
  const PageSize size = sheets.SizeOfPage(page_);
  turned_ = {size.width, size.height};
  if (turn_ % 180 != 0) turned_.transpose();
  const QSizeF whole = turned_ * scale_;
  corner_ = {Begin(whole.width(), window.width(), sheets.ViewValue(ViewPart::Horizontal) * scale_),
             Begin(whole.height(), window.height(), sheets.ViewValue(ViewPart::Vertical) * scale_)};
}

QPointF SheetInWindow::Turned(PagePoint at) const {
  return turning_.map(QPointF(at.x, at.y));
}

QPointF SheetInWindow::TurnedAt(const QPointF& place) const {
  return (place - corner_) / scale_;
}

QPointF SheetInWindow::InWindow(PagePoint at) const {
  return corner_ + Turned(at) * scale_;
}

PagePoint SheetInWindow::OnPage(const QPointF& place) const {
  const QPointF at = turning_.inverted().map(TurnedAt(place));
  return {at.x(), at.y()};
}

QTransform SheetInWindow::ToWindow() const {
  return turning_ * QTransform::fromScale(scale_, scale_) *
         QTransform::fromTranslate(corner_.x(), corner_.y());
}

PlanView SheetInWindow::View(double devicePixelRatio) const {
  PlanView view;
  view.page = page_;
  view.pixelsPerPoint = PixelsPerPoint(zoom_, devicePixelRatio);
  view.turn = turn_;
  view.left = static_cast<int>(std::lround(std::max(0.0, -corner_.x()) * devicePixelRatio));
  view.top = static_cast<int>(std::lround(std::max(0.0, -corner_.y()) * devicePixelRatio));
  view.width = static_cast<int>(std::ceil(window_.width() * devicePixelRatio));
  view.height = static_cast<int>(std::ceil(window_.height() * devicePixelRatio));
  return view;
}

}  // namespace tamo
