#pragma once

#include "docs/docsform.h"
#include "docs/docshell.h"
#include "pricing/pricingform.h"
#include "program/desks.h"
#include "program/shell.h"
#include "reports/reportsform.h"
#include "takeoff/adjustmentform.h"
#include "takeoff/bottomline.h"
#include "takeoff/estimateform.h"
#include "takeoff/missingsystempricing.h"
#include "takeoff/rfsform.h"
#include "takeoff/takeoffreportrefresh.h"
#include "workspace/settingsform.h"
#include "workspace/tamoform.h"
#include "workspace/workdesk.h"

namespace tamo {

// The open report follows a save. A report that fails says so and stops no entry: it is an event of
// its own.
void RefreshReport(ReportsForm& reports);

// The working forms as the menus and the project panel ask for them.
class WorkingForms : public WorkDesk, public Desks, public DocShell {
 public:
  struct Forms {
    PricingForm& pricing;
    RFSForm& rooms;
    EstimateForm& areas;
    BottomLine& bottomLine;
    AdjustmentForm& adjustment;
    ReportsForm& reports;
    DocsForm& docs;
    Shell& shell;
  };
  void Join(const Forms& forms) { forms_ = std::make_unique<Forms>(forms); }

  // For the project panel.
  void InitPricing() override { forms_->pricing.Init(); }
  void RefreshPricingList() override { forms_->pricing.LoadDescriptions(); }
  void PrintReport() override { RefreshReport(forms_->reports); }
  void ClearReports() override { forms_->reports.ClearReport(); }
  void ForgetProject() override {
    forms_->adjustment.ForgetAmount();
    forms_->reports.ForgetProject();
  }

  // For the menus.
  void ToggleUnitPricing(Form* owner) override { forms_->pricing.ToggleUnitsPricing(owner); }
  void TogglePricing(Form* owner) override { forms_->pricing.TogglePricing2(owner); }
  void LoadMarkups() override { forms_->pricing.LoadMarkups(); }
  void EnterSchedule(Form* owner) override { forms_->rooms.EnterRoomFinishSchedule(owner); }
  void TakeOffSchedule(Form* owner) override { forms_->rooms.TakeOffRoomFinishSchedule(owner); }
  void ShowFreeItems(Form* owner) override { forms_->areas.NonFinishScheduleItems(owner); }
  void ShowBottomLine(Form* owner) override { forms_->bottomLine.BottomLineItems(owner); }
  void ShowAdjustment(Form* owner) override { forms_->adjustment.PriceAdjustment(owner); }
  void ToggleDocs(Form* owner) override {
    if (forms_->docs.Visible()) {
      forms_->docs.Hide();
    } else {
      forms_->docs.Show(owner);
    }
  }
  void ShowShell() override { forms_->shell.BringUpShell(); }

 private:
  std::unique_ptr<Forms> forms_;
};

// What pricing asks of the rest, and what the rest asks of it.
class PricingLinks : public ReportRefresh,
                     public TakeoffReportRefresh,
                     public SettingsReader,
                     public ProjectNumberSeed,
                     public MissingSystemPricing,
                     public MarkupSource,
                     public BottomLineFigure {
 public:
  void Join(PricingForm& pricing, ReportsForm& reports, SettingsForm& settings, TamoForm& main,
            Form& ost) {
    pricing_ = &pricing;
    reports_ = &reports;
    settings_ = &settings;
    main_ = &main;
    ost_ = &ost;
  }

  void PrintReport() override { RefreshReport(*reports_); }
  void DisableProjectFileEntry() override { reports_->menu.MakeProjectFile.SetEnabled(false); }
  void LoadSettings() override { settings_->LoadSettings(); }
  void SeedProjectNumber() override { main_->SeedProjectNumber(); }
  void ShowWithName(const QString& system) override { pricing_->ShowWithName(system, ost_); }
  void LoadMarkups() override { pricing_->LoadMarkups(); }
  Markups Texts() const override { return pricing_->MarkupTexts(); }
  void SetTotalBL(const QString& text) override { pricing_->TotalBL = text; }

 private:
  PricingForm* pricing_ = nullptr;
  ReportsForm* reports_ = nullptr;
  SettingsForm* settings_ = nullptr;
  TamoForm* main_ = nullptr;
  Form* ost_ = nullptr;
};

}  // namespace tamo
