#include "pricing/lookcontrols.h"

#include "pricing/palette.h"

namespace tamo {

LookControls::LookControls(Form& owner, Frame& systemFrame) : ControlGroup(owner) {
  PutAllInto(systemFrame, {&Command1, &Command2});
  for (const PaletteRow& row : kPalette) {
    Palette.push_back(std::make_unique<Swatch>(form, QString::fromLatin1(row.name),
                                               QString::fromLatin1(row.label)));
    Palette.back()->PutInto(ColorFrame);
  }
  PutAllInto(ColorFrame, {&iNoColor, &Label20});
  PricingNotes.multiLine = true;
  HideAll({&PricingNotes, &ColorFrame});
}

}  // namespace tamo
