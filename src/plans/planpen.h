#pragma once

#include <memory>
#include <vector>

#include "common/kit.h"
#include "plans/ostcontrols.h"
#include "plans/pdfdraw.h"

namespace tamo {

// The pen of new marks: its colours to choose from, the sample line, and the mode that shows
// whether it is in hand.
class PlanPen {
 public:
  PlanPen(const Kit& kit, OstControls& form, PdfDraw& viewer);

  void Load();  // red, and the swatches painted
  void ModeChanged(PlanTool tool);
  // The sample line is drawn as the next mark will be.
  void ShowPen();

 private:
  void Choose(const QString& code);

  const Kit kit_;
  OstControls& form_;
  PdfDraw& viewer_;
  std::vector<std::unique_ptr<Swatch>> swatches_;
};

}  // namespace tamo
