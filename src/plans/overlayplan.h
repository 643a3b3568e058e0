#pragma once

#include <memory>

#include "plans/overlayink.h"
#include "plans/planengine.h"
#include "plans/sheetfit.h"

namespace tamo {

// A sheet with another one laid over it, painted like any sheet: tile by tile, on the threads of
// whoever paints. The new sheet has the place and the size, the old one is fitted to it.
struct OverlaySheets {
  std::shared_ptr<EnginePlan> now;
  std::shared_ptr<EnginePlan> old;
  int oldPage = 1;
  SheetFit fit;  // from the old sheet to the new one
  OverlayLayer layer = OverlayLayer::Both;
  bool swapped = false;  // the one in front is the older: colours change sides
};

class OverlayPlan : public EnginePlan {
 public:
  explicit OverlayPlan(OverlaySheets sheets) : sheets_(std::move(sheets)) {}

  PlanContents Open(const QString& password) override;
  std::shared_ptr<LoadedPage> LoadPage(int page, CancelFlag& cancel) override;
  bool Paint(const LoadedPage& page, const PaintPart& part, CancelFlag& cancel,
             uint32_t* pixels) override;
  PageContent ReadContent(int page, CancelFlag& cancel) override;
  PlanUpdate BuildUpdate(const MarkChanges& changes) override;
  void ForgetUpdate() override {}
  int WriteWhole(const Sink& sink, QString& problem) override;
  void Abandon() override {}

  // The ink of the old sheet as it lies under a part of the new one; empty when it can't be
  // painted. White where the sheet does not reach.
  static Ink FittedInk(EnginePlan& plan, const LoadedPage& old, const LoadedPage& now,
                       const SheetFit& fit, const PaintPart& part, CancelFlag& cancel);

 private:
  const OverlaySheets sheets_;
};

}  // namespace tamo
