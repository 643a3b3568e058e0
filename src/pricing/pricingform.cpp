#include "pricing/pricingform.h"

#include "common/chain.h"
#include "common/failure.h"

namespace tamo {
namespace {

QStringList Ordinals() {
  return {QStringLiteral("First"),      QStringLiteral("Second"),      QStringLiteral("Third"),
          QStringLiteral("Fourth"),     QStringLiteral("Fifth"),       QStringLiteral("Sixth"),
          QStringLiteral("Seventh"),    QStringLiteral("Eighth"),      QStringLiteral("Ninth"),
          QStringLiteral("Tenth"),      QStringLiteral("Eleventh"),    QStringLiteral("Twelfth"),
          QStringLiteral("Thirteenth"), QStringLiteral("Fourteenth"),  QStringLiteral("Fifteenth"),
          QStringLiteral("Sixteenth"),  QStringLiteral("Seventeenth"), QStringLiteral("Eighteenth"),
          QStringLiteral("Nineteenth"), QStringLiteral("Twentieth")};
}

}  // namespace

PricingForm::PricingForm(const Kit& kit, ReportRefresh& refresh, SettingsReader& settings,
                         ProjectNumberSeed& seed)
    : Form(kit.desk, QStringLiteral("Pricing")),
      PricingMenus(static_cast<Form&>(*this)),
      SystemControls(static_cast<Form&>(*this)),
      MaterialControls(static_cast<Form&>(*this)),
      LookControls(static_cast<Form&>(*this), FramePricing),
      MarkupControls(static_cast<Form&>(*this)),
      ExchangeControls(static_cast<Form&>(*this)),
      vocabulary(kit, *this, *this),
      inWork(kit, *this, *this, blocks),
      kit_(kit),
      settings_(settings),
      seed_(seed),
      parts_{*this, *this, *this, *this, *this, vocabulary, blocks, inWork, price_, open_, refresh},
      systemChain_(kit, *this, parts_),
      materialChain_(kit, *this, parts_, nth, [this] { systemChain_.ClearStuff(); }),
      look_(kit, *this, *this, open_, refresh, LineColor, Material),
      markups_(kit, *this, *this, *this, price_, refresh),
      exchange_(
          kit, parts_, [this] { look_.KeepNotes(); }, [this] { materialChain_.KeepRowReady(); }) {
  AddText(QStringLiteral("LineColor"), &LineColor);
  AddText(QStringLiteral("TotalBL"), &TotalBL);
  KeepUnseen(System);
  KeepUnseen(nth);
  nth.SetRows(Ordinals());
  inWork.fields.WatchKeys();
  BindWindow();
}

PricingForm::~PricingForm() = default;

void PricingForm::BindWindow() {
  onDeactivate = [this] { Leave(); };
  onClose = [this] {
    MarkupsFrame.Hide();
    return true;
  };
  UnitsPricing.onClick = [this] { ToggleUnitsFrame(); };
  PricingMenus::Markups.onClick = [this] { markups_.ToggleFrame(); };
  Xit.onClick = [this] {
    MarkupsFrame.Hide();
    Hide();
  };
}

void PricingForm::Init() {
  if (kit_.shared.DataPath.isEmpty()) settings_.LoadSettings();
  bool missing = false;
  for (const int error :
       {vocabulary.LoadDescriptions(), vocabulary.LoadUnits(), vocabulary.LoadMaterials(),
        vocabulary.LoadOrderUnits(), markups_.LoadMarkups()})
    missing |= error == kFileNotFound;
  if (missing) seed_.SeedProjectNumber();
  look_.PaintPalette();
}

void PricingForm::ReadAgain() {
  vocabulary.ReadAgain();
  if (MarkupsAreBehind(kit_.files, kit_.shared)) markups_.LoadMarkups();
}

// --- shown and hidden ---

void PricingForm::ToggleUnitsPricing(Form* owner) {
  if (Visible()) {
    Hide();
    return;
  }
  Show(owner);
  FramePricing.Show();
  HideAll({&LandMFrame, &EUP, &Label19});
  kit_.desk.Focus(Description);
}

void PricingForm::TogglePricing2(Form* owner) {
  if (Visible()) {
    Hide();
  } else {
    Show(owner);
  }
}

// The form's own entry: the way back from the markups to the systems, and out again.
void PricingForm::ToggleUnitsFrame() {
  if (FramePricing.Shown()) {
    FramePricing.Hide();
    price_.Hide();
    if (!MarkupsFrame.Shown()) Hide();
    return;
  }
  FramePricing.Show();
  kit_.desk.Focus(Description);
}

void PricingForm::ShowWithName(const QString& name, Form* owner) {
  Show(owner);
  Description.SetText(name);
  kit_.desk.Focus(Description);
  Description.SelectAll();
}

// Another window came to the front, or the form was put away: the open system goes with it.
// Everything of it is on the disk.
void PricingForm::Leave() {
  FramePricing.Hide();
  price_.Hide();
  systemChain_.ClearStuff();
  open_.Empty();
  HideAll({&PricingNotes, &ColorFrame, &IEFrame});
  if (MarkupsFrame.Shown()) return;
  Hide();
  CopySystem.SetEnabled(false);
  PasteSystem.SetEnabled(false);
}

}  // namespace tamo
