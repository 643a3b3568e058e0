#pragma once

#include "common/kit.h"
#include "plans/ostcontrols.h"
#include "plans/pdfdraw.h"
#include "plans/planscale.h"
#include "plans/takeofffields.h"

namespace tamo {

// What is measured and counted on the plan, and its way into the takeoff field that waits for it.
class PlanMeasure {
 public:
  PlanMeasure(const Kit& kit, OstControls& form, PdfDraw& viewer, PlanScale& scale,
              TakeoffFields& takeoff);

  void LineMeasured(double& length, QString& label);
  void LineRunning(double& length, QString& label) const;
  bool LineChecked(double paperLength);  // whether the scale is right
  void CirclesCounted(int count);
  void ReturnFocus();                                    // to the field that waits
  bool WaitingField(TakeoffFields::Field& field) const;  // false when none does
  void WarnOfMissingScale();
  // Begins to check the scale against a dimension that the plan states.
  void StartCheck();

 private:
  void HandOver(bool zeroLengthCounts);

  const Kit kit_;
  OstControls& form_;
  PdfDraw& viewer_;
  PlanScale& scale_;
  TakeoffFields& takeoff_;
};

}  // namespace tamo
