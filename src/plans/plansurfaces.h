#pragma once

#include "plans/ostcontrols.h"
#include "plans/planmeasure.h"
#include "plans/planscale.h"
#include "plans/takeofffields.h"

namespace tamo {

// Areas measured on the plan, their way into the takeoff line that waits, and the words above the
// plan that say what the tool in hand does next.
class PlanSurfaces {
 public:
  PlanSurfaces(OstControls& form, PlanScale& scale, PlanMeasure& measure, TakeoffFields& takeoff)
      : form_(form), scale_(scale), measure_(measure), takeoff_(takeoff) {}

  void AreaMeasured(double& area, QString& label);
  void AreaRunning(double& area, QString& label) const;
  void ToolPicked(PlanTool tool);
  // Why the outline can't be ended; "" when the tool goes on.
  void Refused(const QString& why);

 private:
  OstControls& form_;
  PlanScale& scale_;
  PlanMeasure& measure_;
  TakeoffFields& takeoff_;
  QString hint_;  // of the tool in hand
};

}  // namespace tamo
