#include "pricing/systemlook.h"

#include "common/chain.h"
#include "common/paths.h"
#include "pricing/palette.h"

namespace tamo {

SystemLook::SystemLook(const Kit& kit, SystemControls& system, LookControls& look, OpenSystem& open,
                       ReportRefresh& refresh, QString& lineColor, Control& afterColour)
    : kit_(kit),
      system_(system),
      look_(look),
      open_(open),
      refresh_(refresh),
      lineColor_(lineColor),
      afterColour_(afterColour) {
  BindColour();
  BindNotes();
}

void SystemLook::BindColour() {
  for (size_t i = 0; i < look_.Palette.size(); ++i) {
    const QString code = QString::fromLatin1(kPalette[i].code);
    look_.Palette[i]->onClick = [this, code] { ChooseColour(code); };
  }
  look_.iNoColor.onClick = [this] { ChooseColour(QString()); };
  look_.Label20.onClick = [this] { ChooseBackgroundNumber(); };
  look_.Command2.onClick = [this] { Toggle(look_.ColorFrame); };
}

void SystemLook::BindNotes() {
  look_.Command1.onClick = [this] { ToggleNotes(); };
  look_.PricingNotes.onGotFocus = [this] { savedNotes_ = look_.PricingNotes.Text(); };
  look_.PricingNotes.onLostFocus = [this] { KeepNotes(); };
}

void SystemLook::PaintPalette() {
  for (size_t i = 0; i < look_.Palette.size(); ++i)
    look_.Palette[i]->SetColour(QString::fromLatin1(kPalette[i].painted));
}

void SystemLook::ChooseColour(const QString& code) {
  lineColor_ = code;
  look_.ColorFrame.Hide();
  open_.PaintLine();
  open_.SaveSystem();
  EndSystem();
  refresh_.PrintReport();
}

// A colour chosen by key goes with its palette; whoever typed goes on with the next system.
void SystemLook::EndSystem() {
  if (afterColour_.Usable()) {
    kit_.desk.Focus(afterColour_);
  } else if (kit_.desk.Focused() == nullptr) {
    kit_.desk.Focus(system_.Description);
  }
}

// The background's number stands in the colour's place and is not saved until something else is. A
// test holds it.
void SystemLook::ChooseBackgroundNumber() {
  lineColor_ = QString::number(kBackgroundNumber);
  look_.ColorFrame.Hide();
  system_.Line1.SetColour(QString());
}

void SystemLook::ToggleNotes() {
  Toggle(look_.PricingNotes);
  if (look_.PricingNotes.Shown()) {
    kit_.desk.Focus(look_.PricingNotes);
  } else if (!system_.Description.Empty()) {
    open_.SaveSystem();
    refresh_.PrintReport();
  }
}

void SystemLook::KeepNotes() {
  const QString& name = system_.Description.Text();
  if (look_.PricingNotes.Text() == savedNotes_ || name.isEmpty() || !NameRefusal(name).isEmpty())
    return;
  open_.Write();
  savedNotes_ = look_.PricingNotes.Text();
}

}  // namespace tamo
