#include "plans/sheetview.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace tamo {
namespace {

// A position moved by some points, kept on the page.
int Moved(int from, double by, double most) {
  const double last = std::max(0.0, std::floor(most));
  const double start = std::clamp(static_cast<double>(from), 0.0, last);
  return static_cast<int>(std::clamp(std::floor(start + by + 0.5), 0.0, last));
}

}  // namespace

void SheetView::BeginSheets() {
  wantedPage_ = 1;
  std::fill(std::begin(view_), std::end(view_), 0);
}

void SheetView::FillSheets(std::vector<PageSize> sizes) {
  if (sizes.empty()) sizes.emplace_back();
  sizes_ = std::move(sizes);
  page_ = std::clamp(wantedPage_, 1, PageCount());
}

void SheetView::SetPage(int page) {
  wantedPage_ = page;
  const int next = std::clamp(page, 1, PageCount());
  if (next != page_) LeavePage();
  page_ = next;
  Raise(onPageChanged);
  ViewChanged();
}

void SheetView::TurnPage(int page) {
  SetPage(page);
}

PageSize SheetView::SizeOfPage(int page) const {
  if (page < 1 || page > PageCount()) return PageSize();
  return sizes_[static_cast<size_t>(page) - 1];
}

void SheetView::SetZoom(int perCent) {
  zoom_ = std::clamp(perCent, 5, 1600);
  ViewChanged();
}

void SheetView::SetViewValue(ViewPart part, int value) {
  view_[static_cast<int>(part)] = value;
  ViewChanged();
}

void SheetView::ScrollBy(double dx, double dy) {
  if (!IsOnPaper(dx) || !IsOnPaper(dy)) return;
  PageSize size = SizeOfPage(page_);
  const double quarters = std::floor(ViewValue(ViewPart::Rotation) / 90.0 + 0.5);
  if (static_cast<int>(quarters) % 2 != 0) std::swap(size.width, size.height);
  int& left = view_[static_cast<int>(ViewPart::Horizontal)];
  int& top = view_[static_cast<int>(ViewPart::Vertical)];
  const int x = Moved(left, dx, size.width);
  const int y = Moved(top, dy, size.height);
  if (x == left && y == top) return;
  left = x;
  top = y;
  ViewChanged();
  Raise(onScrolled);
}

}  // namespace tamo
