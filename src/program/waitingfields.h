#pragma once

#include "plans/ostform.h"
#include "plans/takeofffields.h"
#include "program/marksonplan.h"
#include "takeoff/estimateform.h"
#include "takeoff/rfsform.h"

namespace tamo {

// The fields of the takeoff that wait for a measure, for the plan; and what the plan says about
// them.
class WaitingFields : public TakeoffFields {
 public:
  // The forms are used only once they are made.
  WaitingFields(const Kit& kit, OSTForm& ost, RFSForm& rooms, EstimateForm& areas,
                MarksOnPlan& marks)
      : kit_(kit), ost_(ost), rooms_(rooms), areas_(areas), marks_(marks) {}

  bool FormVisible(Field field) const override;
  void SetText(Field field, const QString& text) override;
  bool TakeArea(Field waiting, const QString& squareFeet, QString& words) override;
  void FocusOn(Field field) override;

  // After each event: a measure stays with the line that was named for it, and the plan says where
  // the next one goes.
  void Follow();

 private:
  struct Place {
    TakeoffForm& form;
    MeasuredValue& measured;
    TextField& field;
  };
  Place At(Field field) const;
  QString GoesTo() const;

  const Kit& kit_;
  OSTForm& ost_;
  RFSForm& rooms_;
  EstimateForm& areas_;
  MarksOnPlan& marks_;
};

}  // namespace tamo
