#pragma once

#include "reports/bidchanger.h"
#include "takeoff/bottomline.h"
#include "takeoff/estimateform.h"
#include "takeoff/rfsform.h"
#include "workspace/tamoform.h"

// What the versions ask of the rest.

namespace tamo {

class BidChangerOnForms : public BidChanger {
 public:
  // The forms are used only once they are made.
  BidChangerOnForms(const Kit& kit, TamoForm& main, RFSForm& rooms, EstimateForm& areas,
                    BottomLine& bottomLine)
      : kit_(kit), main_(main), rooms_(rooms), areas_(areas), bottomLine_(bottomLine) {}

  bool MayChange() override { return main_.NeedProject() && main_.lock.NeedUnlocked(); }
  void LeaveForms() override {
    bottomLine_.SaveUnsaved();
    bottomLine_.Hide();
    const QString driveBy = kit_.shared.DriveBy;
    rooms_.Exit.onClick();
    areas_.Exit.onClick();
    kit_.shared.DriveBy = driveBy;
  }
  void ReadAgain() override { main_.projects.ReadAgain(); }
  void ReadProjectList() override { main_.picker.LoadJobsList(); }

 private:
  const Kit& kit_;
  TamoForm& main_;
  RFSForm& rooms_;
  EstimateForm& areas_;
  BottomLine& bottomLine_;
};

}  // namespace tamo
