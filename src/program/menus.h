#pragma once

#include "common/kit.h"
#include "plans/ostform.h"
#include "program/desks.h"
#include "program/shell.h"
#include "reports/reportsform.h"
#include "workspace/tamoform.h"

namespace tamo {

// The entries of both menu bars that lead to the working forms: each tests its guards in its order,
// shows a form and hands over to it. An entry that is named nowhere here does nothing, by design.
class Menus {
 public:
  Menus(const Kit& kit, Shell& shell, TamoForm& main, SettingsForm& settings, OSTForm& ost,
        ReportsForm& reports, Desks& desks);

 private:
  enum class Guard { None, Lock, Project, LockThenProject, ProjectThenLock };
  void OnMain(MenuEntry& entry, Guard guard, std::function<void()> action);
  void OnOst(const char* name, Guard guard, std::function<void()> action);
  // The same command on both bars.
  void OnBoth(MenuEntry& entry, const char* ostName, Guard guard,
              const std::function<void()>& action);
  bool Passes(Guard guard);

  void JoinProject();
  void JoinWork();
  void JoinReports();
  void JoinShell();

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

  const Kit kit_;
  Shell& shell_;
  TamoForm& main_;
  SettingsForm& settings_;
  OSTForm& ost_;
  ReportsForm& reports_;
  Desks& desks_;
};

}  // namespace tamo
