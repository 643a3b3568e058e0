#include "common/numbers.h"
#include "pricing/pricingform.h"

// The two conversion numbers of a material: their prompts, and the toggles that turn them round.

namespace tamo {

void PricingForm::SetUpRatios() {
  OnEnter(UPO, Keys::Money, [this] { EnterUPO(); });
  OnGotFocus(UPO);
  OnEnter(MnhrPO, Keys::Money, [this] { EnterMnhrPO(); });
  OnGotFocus(MnhrPO);
  MnhrPO.onLostFocus = [this] { LeaveMnhrPO(); };
}

pricing::PromptNames PricingForm::Names() const {
  return {Units.Text(), OrderUnits.Text(), Description.Text(), Material.Text()};
}

pricing::Prompts PricingForm::TakePrompts() const {
  return {LabelPrice.Caption(), LabelUPO.Caption(), Label5.Caption(), LabelMnhr.Caption(),
          Label8.Caption(),     UPO.Hover(),        MnhrPO.Hover()};
}

void PricingForm::PutPrompts(const pricing::Prompts& prompts) {
  LabelPrice.SetCaption(prompts.labelPrice);
  LabelUPO.SetCaption(prompts.labelUPO);
  Label5.SetCaption(prompts.label5);
  LabelMnhr.SetCaption(prompts.labelMnhr);
  Label8.SetCaption(prompts.label8);
  UPO.SetHover(prompts.hoverUPO);
  MnhrPO.SetHover(prompts.hoverMnhrPO);
}

void PricingForm::SetUpoUpm() {
  pricing::Prompts prompts = TakePrompts();
  prompts.SetUpoUpm(Names(), ratioTag_, laborTag_);
  PutPrompts(prompts);
}

void PricingForm::EnterUPO() {
  if (UPO.Empty()) {
    TurnUPO();
  } else {
    Focus(MnhrPO);
  }
}

// The number itself is never touched: only its direction turns.
void PricingForm::TurnUPO() {
  UPO.SetHover(QString());
  given_[kUpoField].clear();
  const QString upo = QString::fromLatin1(kUpo);
  const QString opu = QString::fromLatin1(kOpu);
  if (Stored(position_)) {
    ratioTag_ = ratioTag_ == upo ? opu : upo;
    while (System.Count() < position_ + kBlockRows) System.Add(QString());
    System.SetRow(position_ + kUpoTagRow, ratioTag_);
    SetUpoUpm();
    return;
  }
  pricing::Prompts prompts = TakePrompts();
  const QString present =
      ratioTag_.isEmpty() ? pricing::PresentRatioTag(prompts, Names()) : ratioTag_;
  ratioTag_ = present == upo ? opu : upo;
  prompts.TurnRatio(Names(), ratioTag_);
  PutPrompts(prompts);
}

// A number of 0, or none, can't be left by Enter.
void PricingForm::EnterMnhrPO() {
  if (!MnhrPO.Empty()) {
    Focus(Waste);
    if (Value(MnhrPO.Text()) == 0) Focus(MnhrPO);
    return;
  }
  if (System.Count() >= kMnhrTagRow) TurnMnhrPO();
  SetUpoUpm();
  Focus(Waste);
  Focus(MnhrPO);
}

// The first material of a system has no tag to turn: its prompts turn when the empty field is left,
// and the focus comes back.
void PricingForm::LeaveMnhrPO() {
  if (!MnhrPO.Empty() || System.Count() >= kMnhrTagRow) return;
  TurnMnhrPO();
  if (Waste.Usable()) Focus(Waste);
  Focus(MnhrPO);
}

void PricingForm::TurnMnhrPO() {
  const QString upm = QString::fromLatin1(kUpm);
  const QString mpu = QString::fromLatin1(kMpu);
  given_[kMnhrPOField].clear();
  pricing::Prompts prompts = TakePrompts();
  if (Stored(position_)) {
    const QString stored = RowAt(System.Rows(), position_ + kMnhrTagRow).toUpper();
    const bool wasUpm = laborTag_.isEmpty() ? stored == upm.toUpper() : laborTag_ == upm;
    laborTag_ = wasUpm ? mpu : upm;
    while (System.Count() < position_ + kBlockRows) System.Add(QString());
    System.SetRow(position_ + kMnhrTagRow, laborTag_);
    return;
  }
  const QString present =
      laborTag_.isEmpty() ? pricing::PresentLaborTag(prompts, Names()) : laborTag_;
  laborTag_ = present == upm ? mpu : upm;
  prompts.TurnLabor(Names(), laborTag_);
  PutPrompts(prompts);
}

}  // namespace tamo
