#pragma once

#include <functional>

#include "common/kit.h"
#include "plans/comparison.h"
#include "plans/ostcontrols.h"
#include "plans/plancarry.h"

namespace tamo {

class PdfDraw;

// The panel beside the plan while another one is laid over it, and its entries
// in the menu.
class PlanCompare {
 public:
  PlanCompare(const Kit& kit, OstControls& form, PdfDraw& viewer);

  std::function<QString()> onChoosePlan;  // the plan to lay over this one, "" for none
  void SheetChanged();                    // another page is in front
  PlanCarry& Carry() { return carry_; }

 private:
  void BindMenu();
  void Choose();
  void Unlock();
  void Refresh();
  void ShowPlaces();

  const Kit kit_;
  OstControls& form_;
  PdfDraw& viewer_;
  Comparison& comparison_;
  PlanCarry carry_;
  QString locked_;    // the plan that waits for a password
  QString password_;  // the last one typed: both revisions mostly share it
  QString said_;      // of what went wrong, in the line for problems
};

}  // namespace tamo
