#pragma once

#include <functional>
#include <map>
#include <memory>
#include <vector>

#include "plans/overlayplan.h"
#include "plans/planpainter.h"

namespace tamo {

// The pictures of one sheet with another one laid over it. Where the sheets are laid anew the
// former pictures stay in sight until the new ones are there. One thread calls.
class OverlayPictures {
 public:
  // Called from the painters' threads: there are more pictures, or a page failed.
  explicit OverlayPictures(std::function<void()> onChanged) : onChanged_(std::move(onChanged)) {}

  // `page` of the new plan, whose pages have the sizes `sizes`. The layer stays. Nothing is painted
  // anew where the sheets lie as they lay.
  void Show(const OverlaySheets& sheets, int page, std::vector<PageSize> sizes);
  void Drop();
  void SetLayer(OverlayLayer layer);
  OverlayLayer Layer() const { return sheets_.layer; }
  // The page is shown laid over, and not the new sheet alone.
  bool Shows(int page) const;

  void Look(const PlanView& view);
  std::vector<PlacedPicture> PicturesFor(const PlanView& view);
  // The painter at work, for whoever waits for it or prints; null when nothing is shown.
  const std::shared_ptr<PlanPainter>& Painter() const { return painter_; }
  bool Looked() const { return looked_; }

 private:
  void Begin();
  bool Same(const OverlaySheets& sheets, int page) const;

  std::function<void()> onChanged_;
  OverlaySheets sheets_;
  int page_ = 0;
  std::vector<PageSize> sizes_;
  PlanView view_;
  bool looked_ = false;
  std::shared_ptr<PlanPainter> painter_;
  std::shared_ptr<PlanPainter> former_;                          // until the new pictures are there
  std::map<OverlayLayer, std::shared_ptr<PlanPainter>> others_;  // of the layers not in sight
};

}  // namespace tamo
