#pragma once

#include <QString>
#include <vector>

#include "common/kit.h"
#include "plans/marktie.h"
#include "plans/ostform.h"
#include "takeoff/estimateform.h"
#include "takeoff/rfsform.h"

namespace tamo {

// The ways between a mark of the plan and the line of the takeoff that it was entered into.
class LinesAndMarks {
 public:
  // The forms are used only once they are made.
  LinesAndMarks(const Kit& kit, OSTForm& ost, RFSForm& rooms, EstimateForm& areas)
      : kit_(kit), ost_(ost), rooms_(rooms), areas_(areas) {}

  void Bind();
  // The line comes into work on its form. Why not, in words; "" when it did.
  QString GoToLine(const TakeoffPlace& place);
  // Another number when the lines on a takeoff form have become others.
  unsigned Revision() const;

 private:
  // The marks of the form's line are shown on the plan that has them, the next one is chosen.
  void ShowMarks(TakeoffForm& form);
  TakeoffPlace PlaceInWork(const TakeoffForm& form) const;
  std::vector<QString> MarksOf(const TakeoffPlace& place) const;
  void BringUpPlan(const TakeoffPlace& place);
  bool HasMarksOf(const QString& path, const TakeoffPlace& place) const;
  QString PlanWithMarksOf(const TakeoffPlace& place) const;
  MenuEntry* EntryTo(bool areas) const;

  const Kit& kit_;
  OSTForm& ost_;
  RFSForm& rooms_;
  EstimateForm& areas_;
};

}  // namespace tamo
