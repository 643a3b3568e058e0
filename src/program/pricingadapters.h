#pragma once

#include "plans/ostform.h"
#include "pricing/pricingform.h"
#include "program/followers.h"
#include "takeoff/missingsystempricing.h"
#include "takeoff/takeoffreportrefresh.h"
#include "workspace/tamoform.h"

// What pricing asks of the rest, and what the rest asks of it.

namespace tamo {

// The open report follows prices and takeoff.
class ReportFollows : public ReportRefresh, public TakeoffReportRefresh {
 public:
  explicit ReportFollows(ReportsForm& reports) : reports_(reports) {}

  void PrintReport() override { RefreshReport(reports_); }
  void DisableProjectFileEntry() override { reports_.menu.MakeProjectFile.SetEnabled(false); }

 private:
  ReportsForm& reports_;
};

// What the price library needs at the start.
class StartOfPricing : public SettingsReader, public ProjectNumberSeed {
 public:
  StartOfPricing(SettingsForm& settings, TamoForm& main) : settings_(settings), main_(main) {}

  void LoadSettings() override { settings_.LoadSettings(); }
  void SeedProjectNumber() override { main_.ids.SeedProjectNumber(); }

 private:
  SettingsForm& settings_;
  TamoForm& main_;
};

// The price library as the takeoff asks for it.
class PricingOnForm : public MissingSystemPricing {
 public:
  PricingOnForm(PricingForm& pricing, OSTForm& ost) : pricing_(pricing), ost_(ost) {}

  void ShowWithName(const QString& system) override { pricing_.ShowWithName(system, &ost_); }

 private:
  PricingForm& pricing_;
  OSTForm& ost_;
};

}  // namespace tamo
