#include "pricing/pricingform.h"

#include "common/failure.h"
#include "common/paths.h"

namespace tamo {
namespace {

const QStringList& Ordinals() {
  static const QStringList words = {
      QStringLiteral("First"),      QStringLiteral("Second"),      QStringLiteral("Third"),
      QStringLiteral("Fourth"),     QStringLiteral("Fifth"),       QStringLiteral("Sixth"),
      QStringLiteral("Seventh"),    QStringLiteral("Eighth"),      QStringLiteral("Ninth"),
      QStringLiteral("Tenth"),      QStringLiteral("Eleventh"),    QStringLiteral("Twelfth"),
      QStringLiteral("Thirteenth"), QStringLiteral("Fourteenth"),  QStringLiteral("Fifteenth"),
      QStringLiteral("Sixteenth"),  QStringLiteral("Seventeenth"), QStringLiteral("Eighteenth"),
      QStringLiteral("Nineteenth"), QStringLiteral("Twentieth")};
  return words;
}

// What a field of the chain takes as a typed character.
bool Passes(QChar c, const char* allowed) {
  return (c >= QLatin1Char('0') && c <= QLatin1Char('9')) || QLatin1String(allowed).contains(c);
}

}  // namespace

PricingForm::PricingForm(const Kit& kit, ReportRefresh& refresh, SettingsReader& settings,
                         ProjectNumberSeed& seed)
    : Form(kit.desk, QStringLiteral("Pricing")),
      kit_(kit),
      refresh_(refresh),
      settings_(settings),
      seed_(seed) {
  AddText(QStringLiteral("LineColor"), &LineColor);
  AddText(QStringLiteral("TotalBL"), &TotalBL);
  SetUpFrames();
  SetUpPalette();
  SetUpLists();
  SetUpSystemChain();
  SetUpMaterialChain();
  SetUpRatios();
  SetUpMarkups();
  SetUpExchange();
  nth.SetRows(Ordinals());
  onDeactivate = [this] { Leave(); };
  onClose = [this] {
    MarkupsFrame.Hide();
    return true;
  };
  UnitsPricing.onClick = [this] { ToggleUnitsFrame(); };
  Xit.onClick = [this] {
    MarkupsFrame.Hide();
    Hide();
  };
}

PricingForm::~PricingForm() = default;

void PricingForm::SetUpFrames() {
  for (Control* control :
       std::initializer_list<Control*>{&LabelUnits, &Units, &UnitsList, &LabelUnitPrice, &UnitPrice,
                                       &Label3, &Line1, &Command1, &Command2})
    control->PutInto(FramePricing);
  for (Control* control : std::initializer_list<Control*>{
           &LabelMaterial, &Material,   &MaterialsList, &Label18,  &LabelOrderUnits,
           &OrderUnits,    &oUnitsList, &LabelPrice,    &Price,    &LabelUPO,
           &UPO,           &Label5,     &LabelMnhr,     &MnhrPO,   &Label8,
           &Label4,        &Waste,      &Label7,        &WageRate, &WagesList,
           &MaterialList})
    control->PutInto(LandMFrame);
  iNoColor.PutInto(ColorFrame);
  Label20.PutInto(ColorFrame);
  for (Control* control : std::initializer_list<Control*>{
           &LabelMOH,  &MOH,       &LabelMTX,  &MTX,        &LabelMMU,  &MMU,       &LabelLOH,
           &LOH,       &LabelLTX,  &LTX,       &LabelLMU,   &LMU,       &LabelBLOH, &BLOH,
           &LabelBLTX, &BLTX,      &LabelBLMU, &BLMU,       &LabelMIOH, &MIOH,      &LabelMITX,
           &MITX,      &LabelMIMU, &MIMU,      &ExitMarkups})
    control->PutInto(MarkupsFrame);
  for (Control* control : std::initializer_list<Control*>{&IELabel, &Drive1, &Dir1, &File1})
    control->PutInto(IEFrame);
  for (Control* control : std::initializer_list<Control*>{
           &FramePricing, &LandMFrame, &ColorFrame, &MarkupsFrame, &IEFrame, &Label3, &Label9,
           &Label19, &EUP, &PricingNotes, &System, &nth, &CopySys})
    control->Hide();
  for (Control* control : std::initializer_list<Control*>{&System, &nth, &CopySys})
    control->takesFocus = false;
  PricingNotes.multiLine = true;
  CopySystem.SetEnabled(false);
  PasteSystem.SetEnabled(false);
}

void PricingForm::SetUpPalette() {
  for (const pricing::PaletteRow& row : pricing::kPalette) {
    Palette.push_back(std::make_unique<Swatch>(*this, QString::fromLatin1(row.name),
                                               QString::fromLatin1(row.label)));
    Palette.back()->PutInto(ColorFrame);
    Palette.back()->onClick = [this, &row] { ChooseColour(QString::fromLatin1(row.code)); };
  }
  iNoColor.onClick = [this] { ChooseColour(QString()); };
  Label20.onClick = [this] { ChooseBackgroundNumber(); };
}

void PricingForm::SetUpLists() {
  Drops(DescriptionsList, Description, [this](const QString& row) { ChooseDescription(row); });
  Drops(UnitsList, Units, [this](const QString& row) {
    Units.SetText(row);
    Focus(UnitPrice);
  });
  Drops(MaterialsList, Material, [this](const QString& row) { ChooseMaterial(row); });
  Drops(oUnitsList, OrderUnits, [this](const QString& row) {
    OrderUnits.SetText(row);
    Focus(OrderUnits);
    OrderUnits.SelectAll();
  });
  Drops(WagesList, WageRate, [this](const QString& row) {
    WageRate.SetText(row);
    Focus(WageRate);
    WageRate.SelectAll();
  });
}

// --- building blocks of the chains ---

void PricingForm::OnEnter(TextField& field, Keys keys, std::function<void()> enter) {
  field.onKey = [keys, enter = std::move(enter)](Key& key) {
    if (key.IsEnter()) {
      key.Drop();
      enter();
      return;
    }
    if (!key.Is(Key::Name::Character) && !key.Is(Key::Name::Space)) return;
    const QChar c = key.character;
    const bool passes =
        keys == Keys::Any || (keys == Keys::FileName && !QStringLiteral(",\"/\\").contains(c)) ||
        (keys == Keys::Money && Passes(c, ".-")) || (keys == Keys::Whole && Passes(c, "-"));
    if (!passes) key.Drop();
  };
}

void PricingForm::OnGotFocus(TextField& field, std::function<void()> also) {
  field.onGotFocus = [&field, also = std::move(also)] {
    field.SelectAll();
    if (also) also();
  };
}

void PricingForm::Drops(OrderedList& list, TextField& field,
                        std::function<void(const QString&)> chosen) {
  list.Hide();
  list.takesFocus = false;
  list.inTabOrder = false;
  list.dropsFrom = &field;
  list.onClick = [&list, chosen = std::move(chosen)] {
    if (list.Index() < 0) return;
    const QString row = list.Selected();
    list.Hide();
    chosen(row);
  };
}

// A field that is left may lead elsewhere (an empty Material to the system's name, Price to UPO).
// That holds for whoever walks away from it, not for a command that says where to go.
void PricingForm::Insist(Control& control) {
  Focus(control);
  if (!control.HasFocus()) Focus(control);
}

bool PricingForm::Refused(const QString& name) {
  const QString refusal = NameRefusal(name);
  if (refusal.isEmpty()) return false;
  kit_.desk.GetMessages().Tell(refusal);
  return true;
}

void PricingForm::RefuseOrGoOn(const QString& name) const {
  const QString refusal = NameRefusal(name);
  if (!refusal.isEmpty()) throw RunTimeFailure(kInvalidArgument, refusal);
}

// --- the lists of names ---

int PricingForm::LoadNames(OrderedList& list, NameList file) {
  QStringList names;
  const int error = ReadNames(kit_.files, kit_.shared, file, names);
  list.SetRows(names);
  return error;
}

void PricingForm::SaveNames(const OrderedList& list, NameList file) {
  WriteNames(kit_.files, kit_.shared, file, list.Rows());
}

// A name is remembered exactly as it was typed, once, in the order of first use.
void PricingForm::AddName(OrderedList& list, const QString& name, void (PricingForm::*save)()) {
  if (list.Find(name) >= 0) return;
  list.Add(name);
  (this->*save)();
}

void PricingForm::LoadDescriptions() {
  LoadNames(DescriptionsList, NameList::Systems);
}
void PricingForm::LoadUnits() {
  LoadNames(UnitsList, NameList::Units);
}
void PricingForm::LoadMaterials() {
  LoadNames(MaterialsList, NameList::Materials);
}
void PricingForm::LoadOrderUnits() {
  LoadNames(oUnitsList, NameList::OrderUnits);
}

// The last name of a library can't be deleted for good: an empty list is not written. A test holds
// it.
void PricingForm::SaveDescriptions() {
  if (DescriptionsList.Empty() || DescriptionsList.Row(0).isEmpty()) return;
  SaveNames(DescriptionsList, NameList::Systems);
}
void PricingForm::SaveUnits() {
  SaveNames(UnitsList, NameList::Units);
}
void PricingForm::SaveMaterials() {
  SaveNames(MaterialsList, NameList::Materials);
}
void PricingForm::SaveOrderUnits() {
  SaveNames(oUnitsList, NameList::OrderUnits);
}
void PricingForm::SaveWagesList() {
  SaveNames(WagesList, NameList::Wages);
}

void PricingForm::Init() {
  if (kit_.shared.DataPath.isEmpty()) settings_.LoadSettings();
  bool missing = false;
  missing |= LoadNames(DescriptionsList, NameList::Systems) == kFileNotFound;
  missing |= LoadNames(UnitsList, NameList::Units) == kFileNotFound;
  missing |= LoadNames(MaterialsList, NameList::Materials) == kFileNotFound;
  missing |= LoadNames(oUnitsList, NameList::OrderUnits) == kFileNotFound;
  missing |= ReadMarkups() == kFileNotFound;
  if (missing) seed_.SeedProjectNumber();
  for (size_t i = 0; i < Palette.size(); ++i)
    Palette[i]->SetColour(QString::fromLatin1(pricing::kPalette[i].painted));
}

// --- shown and hidden ---

void PricingForm::ToggleUnitsPricing(Form* owner) {
  if (Visible()) {
    Hide();
    return;
  }
  Show(owner);
  FramePricing.Show();
  LandMFrame.Hide();
  EUP.Hide();
  Label19.Hide();
  Focus(Description);
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
    HideLabor();
    if (!MarkupsFrame.Shown()) Hide();
    return;
  }
  FramePricing.Show();
  Focus(Description);
}

void PricingForm::ShowWithName(const QString& name, Form* owner) {
  Show(owner);
  Description.SetText(name);
  Focus(Description);
  Description.SelectAll();
}

// Another window came to the front, or the form was put away: the open system goes with it.
// Everything of it is on the disk.
void PricingForm::Leave() {
  FramePricing.Hide();
  HideLabor();
  ClearStuff();
  EmptySystem();
  PricingNotes.Hide();
  ColorFrame.Hide();
  IEFrame.Hide();
  if (MarkupsFrame.Shown()) return;
  Hide();
  CopySystem.SetEnabled(false);
  PasteSystem.SetEnabled(false);
}

}  // namespace tamo
