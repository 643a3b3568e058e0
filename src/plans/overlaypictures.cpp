#include "plans/overlaypictures.h"

#include <utility>

namespace tamo {

bool OverlayPictures::Same(const OverlaySheets& sheets, int page) const {
  constexpr double kNothing = 0.02;  // points
  return page == page_ && sheets.now == sheets_.now && sheets.old == sheets_.old &&
         sheets.oldPage == sheets_.oldPage && sheets.swapped == sheets_.swapped &&
         FarthestApart(sheets.fit, sheets_.fit, sizes_[size_t(page) - 1]) < kNothing;
}

void OverlayPictures::Show(const OverlaySheets& sheets, int page, std::vector<PageSize> sizes) {
  if (page < 1 || size_t(page) > sizes.size() || Same(sheets, page)) return;
  const OverlayLayer layer = sheets_.layer;
  former_ = page == page_ ? std::move(painter_) : nullptr;
  painter_.reset();
  others_.clear();
  sheets_ = sheets;
  sheets_.layer = layer;
  page_ = page;
  sizes_ = std::move(sizes);
  Begin();
}

// The new sheet alone is what the plan's own pictures show.
void OverlayPictures::Begin() {
  if (sheets_.layer == OverlayLayer::Now || page_ == 0) return;
  painter_ =
      std::make_shared<PlanPainter>(std::make_shared<OverlayPlan>(sheets_), sizes_, onChanged_);
  if (looked_ && view_.page == page_) painter_->Look(view_);
}

void OverlayPictures::Drop() {
  former_.reset();
  painter_.reset();
  others_.clear();
  page_ = 0;
  sheets_ = {};
}

void OverlayPictures::SetLayer(OverlayLayer layer) {
  if (layer == sheets_.layer) return;
  former_.reset();
  if (painter_ != nullptr) others_[sheets_.layer] = std::move(painter_);
  painter_.reset();
  sheets_.layer = layer;
  const auto there = others_.find(layer);
  if (there == others_.end()) return Begin();
  painter_ = std::move(there->second);
  others_.erase(there);
  if (looked_ && view_.page == page_) painter_->Look(view_);
}

bool OverlayPictures::Shows(int page) const {
  return page == page_ && painter_ != nullptr;
}

void OverlayPictures::Look(const PlanView& view) {
  view_ = view;
  looked_ = true;
  if (Shows(view.page)) painter_->Look(view);
}

std::vector<PlacedPicture> OverlayPictures::PicturesFor(const PlanView& view) {
  if (!Shows(view.page)) return {};
  std::vector<PlacedPicture> pictures = painter_->PicturesFor(view);
  if (!pictures.empty()) {
    former_.reset();
  } else if (former_ != nullptr) {
    return former_->PicturesFor(view);
  }
  return pictures;
}

}  // namespace tamo
