#include "program/work.h"

namespace tamo {

MarkupTexts PricingLinks::Texts() const {
  const Markups markups = pricing_->MarkupTexts();
  MarkupTexts texts;
  texts.LOH = markups.LOH;
  texts.LTX = markups.LTX;
  texts.LMU = markups.LMU;
  texts.MOH = markups.MOH;
  texts.MTX = markups.MTX;
  texts.MMU = markups.MMU;
  texts.BLOH = markups.BLOH;
  texts.BLTX = markups.BLTX;
  texts.BLMU = markups.BLMU;
  texts.MIOH = markups.MIOH;
  texts.MITX = markups.MITX;
  texts.MIMU = markups.MIMU;
  return texts;
}

}  // namespace tamo
