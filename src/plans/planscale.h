#pragma once

#include <functional>

#include "plans/measuring.h"
#include "plans/ostcontrols.h"
#include "plans/pdfdraw.h"
#include "plans/planrecord.h"
#include "plans/scales.h"

namespace tamo {

// The scale in force: chosen from the menu, typed, or read from the record; in words beside the
// plan; and what a line is by it.
class PlanScale {
 public:
  PlanScale(OstControls& form, PdfDraw& viewer, PlanRecord& record);

  void Choose(const ScaleEntry& scale);
  // All three texts at once; an inch scale brings the viewer back to inches.
  void Take(const ScaleTexts& scale);
  // The unit that Text5 names, on the viewer; nothing for an inch scale, by the rule of the form.
  void SetUnitByText5();
  void Show();
  bool IsSet() const;  // both numbers are other than 0
  // `paperLength` in the viewer's paper unit; `label` its own label.
  MeasuredLine Measured(double paperLength, const QString& label) const;
  // The same of an area in square paper units.
  MeasuredArea MeasuredSurface(double paperArea, const QString& label) const;

  std::function<void()> onShown;  // the scale was looked at anew: it may be another

 private:
  void Bind();
  void SetViewerToInches();
  ScaleTexts Texts() const;

  OstControls& form_;
  PdfDraw& viewer_;
  PlanRecord& record_;
  bool inchesChosen_ = false;  // 1"=100' was chosen, which leaves Text5 as it was
  bool saved_ = false;         // the record, since the scale entry in work was chosen
  bool taking_ = false;        // the fields are being filled
};

}  // namespace tamo
