#pragma once

#include "common/kit.h"
#include "plans/ostcontrols.h"
#include "plans/pdfdraw.h"
#include "plans/planrecord.h"

namespace tamo {

// The project's own copy of the plan on the screen, with its marks.
class MarkedCopy {
 public:
  MarkedCopy(const Kit& kit, OstControls& form, PdfDraw& viewer, PlanRecord& record)
      : kit_(kit), form_(form), viewer_(viewer), record_(record) {}

  // Into the project `id`, and the record after it. Nothing when there is no plan to save.
  void Save(const QString& id);
  // Another plan comes up: marks that could not be written so far have their last chance.
  void Leave();

 private:
  bool NothingToSave() const;
  void Write(const QString& target);

  const Kit kit_;
  OstControls& form_;
  PdfDraw& viewer_;
  PlanRecord& record_;
  QString waiting_;  // a copy that could not be written yet
};

}  // namespace tamo
