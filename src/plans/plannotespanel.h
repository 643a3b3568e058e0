#pragma once

#include "common/kit.h"
#include "plans/ostcontrols.h"
#include "plans/pdfdraw.h"

namespace tamo {

// The notes on the project's plans: a panel that opens over the plan and closes again.
class PlanNotesPanel {
 public:
  PlanNotesPanel(const Kit& kit, OstControls& form, PdfDraw& viewer);

  void Toggle();
  void Load();
  void Save();  // nothing without a project

 private:
  const Kit kit_;
  OstControls& form_;
  PdfDraw& viewer_;
};

}  // namespace tamo
