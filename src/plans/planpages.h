#pragma once

#include "plans/ostcontrols.h"
#include "plans/pdfdraw.h"
#include "plans/planrecord.h"

namespace tamo {

// Pages and zoom of the plan, in their fields and on the viewer.
class PlanPages {
 public:
  PlanPages(OstControls& form, PdfDraw& viewer, PlanRecord& record);

  void SetZoomByLevel(const QString& level);
  void ZoomIn();
  void ZoomOut();
  void TakeZoomLevel();  // as typed
  void TakePage();
  void ShowPage();

 private:
  void SaveSuppressed();
  void ShowLevel(double level);

  OstControls& form_;
  PdfDraw& viewer_;
  PlanRecord& record_;
};

}  // namespace tamo
