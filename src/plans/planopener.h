#pragma once

#include "common/kit.h"
#include "plans/markedcopy.h"
#include "plans/ostcontrols.h"
#include "plans/pdfdraw.h"
#include "plans/planbrowser.h"
#include "plans/planpages.h"
#include "plans/planrecord.h"
#include "plans/planscale.h"

namespace tamo {

// The parts of the form that stand ready when a plan comes up.
struct PlanParts {
  PlanRecord& record;
  PlanScale& scale;
  PlanPages& pages;
  PlanBrowser& browser;
  MarkedCopy& copy;
};

// How a plan comes onto the screen: picked, typed, named by the record, or none.
class PlanOpener {
 public:
  PlanOpener(const Kit& kit, OstControls& form, PdfDraw& viewer, const PlanParts& parts);

  void LoadPDF();  // the plan that PlanLocation names
  void LoadFN();   // the plan of the record that is being read
  void OpenBlank();
  void EnterPlanLocation();
  // The plan at `path` wants a password: the strip for it is shown.
  void AskPassword(const QString& path);
  void OpenLocked();  // with the password typed there

 private:
  void Pick();
  void PickTwice();
  bool Open(const QString& path);
  void OpenAbout();
  void OpenNamed();
  void PlanGone();
  void ShowBlank();

  const Kit kit_;
  OstControls& form_;
  PdfDraw& viewer_;
  const PlanParts parts_;
  QString locked_;    // the plan that waits for a password
  QString password_;  // the last one typed: the sheets of a set mostly share one
  QString picked_;    // the plan that LoadPDF shows while the record is read
};

}  // namespace tamo
