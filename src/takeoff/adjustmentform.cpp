#include "takeoff/adjustmentform.h"

#include "common/chain.h"
#include "common/failure.h"
#include "common/numbers.h"
#include "records/adjustmentfile.h"

namespace tamo {

AdjustmentForm::AdjustmentForm(const Kit& kit, TakeoffReportRefresh& reports)
    : Form(kit.desk, "AdjustmentForm"), kit_(kit), reports_(reports) {
  SetCaption(QStringLiteral("Adjustment"));
  Adjustment.onGotFocus = [this] {
    LoadAdj();
    Adjustment.SelectAll();
  };
  OnEnter(Adjustment, [this] { TakeAdjustment(); });
  SayTakenNumber(Adjustment);
}

void AdjustmentForm::PriceAdjustment(Form* owner) {
  Show(owner);
  GetDesk().Focus(Adjustment);
}

void AdjustmentForm::LoadAdj() {
  ReadAdjustment(kit_.files, kit_.shared, work_);
  Adjustment.SetText(work_);
  GetDesk().Focus(Adjustment);
}

void AdjustmentForm::SaveAdj() {
  if (kit_.shared.JobID.isEmpty()) {
    throw RunTimeFailure(kPathNotFound,
                         QStringLiteral("No project is open, so the adjustment has no place. "
                                        "Nothing was stored; open a project first."));
  }
  WriteAdjustment(kit_.files, kit_.shared, Adjustment.Text());
}

void AdjustmentForm::ForgetAmount() {
  work_.clear();
}

// A zero is written as 0.00; an amount below a half becomes 0 (both held by a test).
void AdjustmentForm::TakeAdjustment() {
  const double amount = Value(Adjustment.Text());
  Adjustment.SetText(amount == 0 ? QStringLiteral("0.00") : NumberText(Rounded(amount)));
  SaveAdj();
  reports_.PrintReport();
  Hide();
}

}  // namespace tamo
