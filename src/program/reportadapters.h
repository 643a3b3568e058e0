#pragma once

#include "plans/ostform.h"
#include "program/shell.h"
#include "reports/projectrecord.h"
#include "reports/reportsform.h"
#include "reports/reportsshell.h"
#include "reports/wholequantitiessetting.h"
#include "workspace/settingsform.h"
#include "workspace/tamoform.h"

// What the reports ask of the rest.

namespace tamo {

class ProjectRecordOnTamo : public ProjectRecord {
 public:
  explicit ProjectRecordOnTamo(TamoForm& main) : main_(main) {}

  void LoadJobNFO() override { main_.record.LoadJobNFO(); }
  ProjectFacts Facts() const override {
    const ProjectPanel& panel = main_.panel;
    return {panel.JobName.Text(),   panel.BidDate.Text(),    panel.Phase.Text(),
            panel.Addenda.Text(),   panel.Inclusions.Text(), panel.Exclusions.Text(),
            panel.Architect.Text(), panel.Notes.Text()};
  }

 private:
  TamoForm& main_;
};

class ReportsShellOnForms : public ReportsShell {
 public:
  ReportsShellOnForms(Shell& shell, ReportsForm& reports, OSTForm& ost)
      : shell_(shell), reports_(reports), ost_(ost) {}

  void ShowMainForm() override { shell_.ShowMainForm(); }
  void HideMainForm() override { shell_.HideMainForm(); }
  void ShowReports() override { reports_.Show(&ost_); }

 private:
  Shell& shell_;
  ReportsForm& reports_;
  OSTForm& ost_;
};

// Kept with the settings.
class WholeQuantitiesInSettings : public WholeQuantitiesSetting {
 public:
  explicit WholeQuantitiesInSettings(SettingsForm& settings) : settings_(settings) {}

  bool WholeQuantities() const override { return settings_.WholeQuantities(); }
  void SetWholeQuantities(bool on) override { settings_.SetWholeQuantities(on); }

 private:
  SettingsForm& settings_;
};

}  // namespace tamo
