#pragma once

#include <QDateTime>

#include "common/kit.h"
#include "plans/ostform.h"
#include "pricing/pricingform.h"
#include "reports/reportsform.h"
#include "takeoff/bottomline.h"
#include "takeoff/estimateform.h"
#include "takeoff/rfsform.h"
#include "workspace/tamoform.h"

namespace tamo {

// What stands on the forms and is behind its file - it could not be read, or others' entries have
// joined it - is read again. The estimator stays where he is, and nothing that was typed goes.
class ReadAgain {
 public:
  struct Forms {
    TamoForm& main;
    OSTForm& ost;
    PricingForm& pricing;
    RFSForm& rooms;
    EstimateForm& areas;
    BottomLine& bottomLine;
    ReportsForm& reports;
  };
  // All of it outlives this, and is asked nothing before it is made.
  ReadAgain(const Kit& kit, const Forms& forms) : kit_(kit), forms_(forms) {}

  void Run();
  // Every few seconds. While something can't be read or saved it is tried again now and then: a
  // drive that comes back is found without a click.
  void Tick();

 private:
  void ReadSystemNames();

  const Kit kit_;
  const Forms forms_;
  QDateTime tried_;  // invalid while all is well
};

}  // namespace tamo
