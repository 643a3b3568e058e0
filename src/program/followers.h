#pragma once

#include <vector>

#include "history/history.h"
#include "plans/ostform.h"
#include "pricing/pricingform.h"
#include "reports/reportsform.h"
#include "takeoff/adjustmentform.h"
#include "workspace/projectfollowers.h"

namespace tamo {

// The open report follows a save. A report that fails says so and stops no entry: it is an event of
// its own.
void RefreshReport(ReportsForm& reports);

// The working forms as the project panel asks for them.
class FollowersOnForms : public ProjectFollowers {
 public:
  // All of it is used only once the program runs.
  FollowersOnForms(PricingForm& pricing, AdjustmentForm& adjustment, ReportsForm& reports,
                   OSTForm& ost, History& history, std::vector<Form*> writing)
      : pricing_(pricing),
        adjustment_(adjustment),
        reports_(reports),
        ost_(ost),
        history_(history),
        writing_(std::move(writing)) {}

  void InitPricing() override { pricing_.Init(); }
  void RefreshPricingList() override { pricing_.LoadDescriptions(); }
  void PrintReport() override { RefreshReport(reports_); }
  void ClearReports() override { reports_.ClearReport(); }
  void ShowReadOnly(bool readOnly) override {
    ost_.PlanNotes.SetReadOnly(readOnly);
    if (!readOnly) return;
    for (Form* form : writing_) form->Hide();
  }
  void KeepDeleted(const QString& id, const QString& name) override {
    const QString problem = history_.KeepDeletedProject(id, name);
    if (!problem.isEmpty())
      reports_.GetDesk().GetMessages().Tell(
          QStringLiteral("The project can't be brought back later: its last state could not be "
                         "kept, because %1.")
              .arg(problem));
  }
  void ForgetProject() override {
    adjustment_.ForgetAmount();
    reports_.ForgetProject();
  }

 private:
  PricingForm& pricing_;
  AdjustmentForm& adjustment_;
  ReportsForm& reports_;
  OSTForm& ost_;
  History& history_;
  std::vector<Form*> writing_;  // what is entered there goes into the open project
};

}  // namespace tamo
