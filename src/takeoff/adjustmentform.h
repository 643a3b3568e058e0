#pragma once

#include "common/control.h"
#include "common/form.h"
#include "common/kit.h"
#include "takeoff/takeoffreportrefresh.h"

namespace tamo {

// The whole amount by which the estimator changes a project's bid at the end.
class AdjustmentForm : public Form {
 public:
  AdjustmentForm(const Kit& kit, TakeoffReportRefresh& reports);

  Label AdjustmentLabel{*this, "AdjustmentLabel", "Change the bottom line by"};
  TextField Adjustment{*this, "Adjustment"};

  // The shell's menu entry, after its guards.
  void PriceAdjustment(Form* owner);

  void LoadAdj();
  void SaveAdj();

  // Called whenever a project is opened, created or cleared: no project shows another's amount.
  void ForgetAmount();

 private:
  void TakeAdjustment();

  const Kit kit_;
  TakeoffReportRefresh& reports_;
  QString work_;  // the amount last read; shown again when a file is missing
};

}  // namespace tamo
