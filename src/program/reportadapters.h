#pragma once

#include "common/form.h"
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
  void Join(TamoForm& main) { main_ = &main; }

  void LoadJobNFO() override { main_->LoadJobNFO(); }
  ProjectFacts Facts() const override {
    return {main_->JobName.Text(),   main_->BidDate.Text(),    main_->Phase.Text(),
            main_->Addenda.Text(),   main_->Inclusions.Text(), main_->Exclusions.Text(),
            main_->Architect.Text(), main_->Notes.Text()};
  }

 private:
  TamoForm* main_ = nullptr;
};

class ReportsShellOnForms : public ReportsShell {
 public:
  void Join(Shell& shell, Form& reports, Form& ost) {
    shell_ = &shell;
    reports_ = &reports;
    ost_ = &ost;
  }

  void ShowMainForm() override { shell_->ShowMainForm(); }
  void HideMainForm() override { shell_->HideMainForm(); }
  void ShowReports() override { reports_->Show(ost_); }

 private:
  Shell* shell_ = nullptr;
  Form* reports_ = nullptr;
  Form* ost_ = nullptr;
};

// Kept with the settings.
class WholeQuantitiesInSettings : public WholeQuantitiesSetting {
 public:
  void Join(SettingsForm& settings) { settings_ = &settings; }

  bool WholeQuantities() const override {
    return settings_ != nullptr && settings_->WholeQuantities();
  }
  void SetWholeQuantities(bool on) override { settings_->SetWholeQuantities(on); }

 private:
  SettingsForm* settings_ = nullptr;
};

}  // namespace tamo
