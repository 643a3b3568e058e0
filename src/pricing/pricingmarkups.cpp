#include "pricing/pricingform.h"

// The markups: twelve fields in a ring, the file rewritten at each Enter.

namespace tamo {

void PricingForm::SetUpMarkups() {
  for (size_t i = 0; i < markups_.size(); ++i) {
    TextField* next = markups_[(i + 1) % markups_.size()];
    OnEnter(*markups_[i], Keys::Any, [this, next] {
      StoreMarkups();
      Focus(*next);
      refresh_.PrintReport();
    });
    OnGotFocus(*markups_[i]);
  }
  // The labor markup alone is saved when it is entered, too. A test holds it.
  OnGotFocus(LMU, [this] { SaveMarkups(); });
  Markups.onClick = [this] { ToggleMarkups(); };
  ExitMarkups.onClick = [this] { LeaveMarkups(); };
}

tamo::Markups PricingForm::MarkupTexts() const {
  tamo::Markups markups;
  const auto texts = markups.InFileOrder();
  for (size_t i = 0; i < texts.size(); ++i) *texts[i] = markups_[i]->Text();
  return markups;
}

int PricingForm::ReadMarkups() {
  tamo::Markups markups = MarkupTexts();
  const int error = tamo::LoadMarkups(kit_.files, kit_.shared, markups);
  const auto texts = markups.InFileOrder();
  for (size_t i = 0; i < texts.size(); ++i) markups_[i]->SetText(*texts[i]);
  return error;
}

void PricingForm::LoadMarkups() {
  ReadMarkups();
}

void PricingForm::SaveMarkups() {
  StoreMarkups();
  refresh_.PrintReport();
}

void PricingForm::StoreMarkups() {
  tamo::SaveMarkups(kit_.files, kit_.shared, MarkupTexts());
  if (LandMFrame.Shown()) MakeEUP();
}

void PricingForm::ToggleMarkups() {
  refresh_.DisableProjectFileEntry();
  Toggle(MarkupsFrame);
  if (!MarkupsFrame.Shown()) return;
  LoadMarkups();
  Insist(MOH);
}

void PricingForm::LeaveMarkups() {
  MarkupsFrame.Hide();
  if (!FramePricing.Shown()) Hide();
}

}  // namespace tamo
