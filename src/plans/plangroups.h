#pragma once

#include "common/kit.h"
#include "plans/ostcontrols.h"
#include "plans/pdfdraw.h"
#include "plans/planmeasure.h"

namespace tamo {

// The strip above the plan in which a group of counting circles is chosen or begun, with the totals
// of all groups.
class PlanGroups {
 public:
  PlanGroups(const Kit& kit, OstControls& form, PdfDraw& viewer, PlanMeasure& measure);

  void Open();  // shows the strip, the cursor in the name
  // Circles of a group came or went: its count goes where a count goes.
  void Counted(const QString& group, int count);
  void ToolPicked(PlanTool tool);
  void ShowGroups();  // the totals anew

 private:
  void Take();
  void Close();
  void Say();
  void Selected();

  const Kit kit_;
  OstControls& form_;
  PdfDraw& viewer_;
  PlanMeasure& measure_;
  bool showing_ = false;  // the list is being filled
};

}  // namespace tamo
