#pragma once

#include <functional>
#include <memory>

#include "common/kit.h"
#include "plans/carriedmarks.h"
#include "plans/carrywork.h"
#include "plans/comparison.h"
#include "plans/ostcontrols.h"

namespace tamo {

class PdfDraw;

// Brings the marks of the old plan onto the new one, of the sheet in front or
// of all sheets. Nothing comes, and nothing is saved, before the question is
// answered.
class PlanCarry {
 public:
  PlanCarry(const Kit& kit, OstControls& form, PdfDraw& viewer);

  void CarrySheet();
  // The sheets that hold marks are compared first.
  void CarryAll();
  std::function<void()> onCarried;  // they are to be saved with the plan

 private:
  QString WhyNot() const;
  void Offer(const CarriedMarks& carried, const QString& where);
  void OfferAll(const SheetsToCarry& sheets);

  const Kit kit_;
  OstControls& form_;
  PdfDraw& viewer_;
  Comparison& comparison_;
};

}  // namespace tamo
