#pragma once

#include "common/kit.h"
#include "docs/docsform.h"
#include "plans/ostform.h"
#include "pricing/pricingform.h"
#include "program/shell.h"
#include "reports/reportsform.h"
#include "reports/versionsform.h"
#include "takeoff/adjustmentform.h"
#include "takeoff/bottomline.h"
#include "takeoff/estimateform.h"
#include "takeoff/rfsform.h"
#include "workspace/tamoform.h"

namespace tamo {

// The entries of both menu bars that lead to the working forms: each tests its guards in its order,
// shows a form and hands over to it. An entry that is named nowhere here does nothing, by design.
class Menus {
 public:
  // All forms that an entry leads to; they outlive this.
  struct Forms {
    TamoForm& main;
    SettingsForm& settings;
    OSTForm& ost;
    PricingForm& pricing;
    RFSForm& rooms;
    EstimateForm& areas;
    BottomLine& bottomLine;
    AdjustmentForm& adjustment;
    ReportsForm& reports;
    DocsForm& docs;
    VersionsForm& versions;
  };
  Menus(const Kit& kit, Shell& shell, const Forms& forms);

 private:
  enum class Guard { None, Lock, Project, LockThenProject, ProjectThenLock };
  void OnMain(MenuEntry& entry, Guard guard, std::function<void()> action);
  void OnOst(const char* name, Guard guard, std::function<void()> action);
  // The same command on both bars.
  void OnBoth(MenuEntry& entry, const char* ostName, Guard guard,
              const std::function<void()>& action);
  bool Passes(Guard guard);

  void BindProject();
  void BindProjectFromOst();
  void BindWork();
  void BindVersions();
  void BindReports();
  void BindShell();

  void ProjectInformationReport();
  void ShowReport(const std::function<void()>& report);
  void Recap(const QString& detailed);
  void OfficeCopy();
  void FieldCopy();
  void OpenFromOst();
  void NewFromOst();
  void InformationFromOst();
  void CopyFromOst();
  void ShowOst();
  void ToggleDocs();

  const Kit kit_;
  Shell& shell_;
  const Forms forms_;
};

}  // namespace tamo
