#include "pricing/laborprice.h"

#include "common/failure.h"
#include "pricing/unitprice.h"

namespace tamo {

void LaborPrice::MakeEUP() {
  const EstimatedPrice price = EstimateUnitPrice(blocks_.Rows(), markups_.MarkupTexts());
  material_.EUP.SetCaption(price.text);
  if (price.stoppedAt < 0) return;
  const QString name = blocks_.At(price.stoppedAt).material;
  BringUp(price.stoppedAt, price.labor);
  const Label& prompt = price.labor ? material_.LabelMnhr : material_.LabelUPO;
  throw RunTimeFailure(
      kDivisionByZero,
      QStringLiteral("The unit price of \"%1\" can't be estimated: the material \"%2\" has 0, or "
                     "no number, in "
                     "the field \"%3\". Enter another number there.")
          .arg(system_.Description.Text(), name, prompt.Caption()));
}

// The number to correct, with the material that it belongs to in the fields.
void LaborPrice::BringUp(int place, bool labor) {
  system_.FramePricing.Show();
  Show();
  if (place < material_.MaterialList.Count()) material_.MaterialList.SetIndex(place);
  desk_.Focus(labor ? material_.MnhrPO : material_.UPO);
}

void LaborPrice::ShowAsFarAsItGoes() {
  material_.EUP.SetCaption(blocks_.Empty()
                               ? QStringLiteral("0.00")
                               : EstimateUnitPrice(blocks_.Rows(), markups_.MarkupTexts()).text);
}

void LaborPrice::Show() {
  material_.LandMFrame.Show();
  material_.EUP.Show();
  material_.Label9.Show();
}

void LaborPrice::HideAmount() {
  HideAll({&material_.LandMFrame, &material_.EUP, &material_.Label9});
}

void LaborPrice::Hide() {
  HideAmount();
  material_.Label19.Hide();
}

}  // namespace tamo
