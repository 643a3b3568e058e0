#include "common/columns.h"
#include "common/failure.h"
#include "common/numbers.h"
#include "common/paths.h"
#include "pricing/pricingform.h"
#include "pricing/unitprice.h"

// The chain of a system: its name, its takeoff unit, its price, its colour and notes.

namespace tamo {

void PricingForm::SetUpSystemChain() {
  OnEnter(Description, Keys::FileName, [this] { EnterDescription(); });
  OnGotFocus(Description, [this] {
    if (Description.Empty()) ClearStuff();
  });
  Description.onLostFocus = [this] { DescriptionsList.Hide(); };
  Description.onClick = [this] { Toggle(DescriptionsList); };
  Description.onRightClick = [this] {
    if (!Description.Empty()) PopUp(SystemMenu);
  };
  SystemDelete.onClick = [this] { DeleteSystem(); };

  OnEnter(Units, Keys::Any, [this] { EnterUnits(); });
  const auto enterUnits = Units.onKey;
  Units.onKey = [this, enterUnits](Key& key) {
    if (!key.IsEnter()) UnitsList.Hide();
    enterUnits(key);
  };
  OnGotFocus(Units, [this] {
    Units.Show();
    if (!UnitsList.Empty()) UnitsList.Show();
  });
  Units.onLostFocus = [this] { LeaveUnits(); };
  Units.onClick = [this] { Toggle(UnitsList); };

  OnEnter(UnitPrice, Keys::Money, [this] { EnterUnitPrice(); });
  OnGotFocus(UnitPrice, [this] { DescriptionsList.Hide(); });

  Command1.onClick = [this] { ToggleNotes(); };
  Command2.onClick = [this] { Toggle(ColorFrame); };
  PricingNotes.onGotFocus = [this] { savedNotes_ = PricingNotes.Text(); };
  PricingNotes.onLostFocus = [this] { LeaveNotes(); };
}

// --- Description ---

void PricingForm::EnterDescription() {
  DescriptionsList.Hide();
  if (Description.Empty()) {
    FinishForm();
    return;
  }
  const int row = descriptions_.Find(Description.Text());
  if (row >= 0) Description.SetText(DescriptionsList.Row(row));
  if (Refused(Description.Text())) return;
  if (row < 0) {
    BeginSystem();
    return;
  }
  if (!LoadSystem()) return;
  if (!System.Empty()) {
    MakeEUP();
    MaterialList.SetIndex(0);
  }
  if (Value(UnitPrice.Text()) != 0) {
    Focus(Units);
  } else {
    ShowLabor();
    Focus(Material);
  }
}

void PricingForm::FinishForm() {
  ClearStuff();
  Hide();
  CopySystem.SetEnabled(false);
  PasteSystem.SetEnabled(false);
  ClearStuff();
}

void PricingForm::ChooseDescription(const QString& name) {
  if (name.isEmpty()) return;
  Description.SetText(name);
  DescriptionsList.SetIndex(-1);
  if (Refused(name)) return;
  LoadSystem();
  if (!MaterialList.Empty()) MaterialList.SetIndex(0);
  FramePricing.Show();
  LabelUnits.Show();
  Units.Show();
  Label3.Show();
  if (Units.Empty()) {
    Insist(Units);
  } else if (Value(UnitPrice.Text()) != 0) {
    LandMFrame.Hide();
    EUP.Hide();
    Label9.Hide();
    Insist(UnitPrice);
  } else {
    LandMFrame.Show();
    EUP.Show();
    Label19.Show();
    MakeEUP();
    Focus(Material);
  }
}

// The name is in the library at once; its file follows with the price.
void PricingForm::BeginSystem() {
  DescriptionsList.Add(Description.Text());
  SaveDescriptions();
  EmptySystem();
  HideLabor();
  ColorFrame.Hide();
  FramePricing.Show();
  Focus(Units);
}

// Nothing of the system before counts for the next one.
void PricingForm::EmptySystem() {
  Units.Clear();
  UnitPrice.Clear();
  ClearSomeStuff();
  LineColor.clear();
  PaintLine();
  PricingNotes.Clear();
  System.Clear();
  MaterialList.Clear();
  position_ = 0;
}

void PricingForm::HideLabor() {
  LandMFrame.Hide();
  EUP.Hide();
  Label9.Hide();
  Label19.Hide();
}

void PricingForm::ShowLabor() {
  LandMFrame.Show();
  EUP.Show();
  Label9.Show();
}

void PricingForm::ClearStuff() {
  Description.Clear();
  Units.Clear();
  ClearSomeStuff();
  UnitPrice.Clear();
  EUP.SetCaption(QString());
  EUP.Hide();
  Label19.Hide();
}

// --- Units and UnitPrice ---

void PricingForm::EnterUnits() {
  if (MaterialList.Index() < 0 && !MaterialList.Empty())
    MaterialList.SetIndex(MaterialList.Count() - 1);
  if (Units.Empty()) {
    Focus(Units);
    return;
  }
  pricing::Prompts prompts = TakePrompts();
  prompts.AfterUnits(Names());
  PutPrompts(prompts);
  UnitsList.Hide();
  Label3.Show();
  Insist(UnitPrice);
}

void PricingForm::LeaveUnits() {
  UnitsList.Hide();
  if (Units.Empty()) {
    if (Units.Usable()) Focus(Units);
    return;
  }
  pricing::Prompts prompts = TakePrompts();
  prompts.AfterUnits(Names());
  PutPrompts(prompts);
}

void PricingForm::EnterUnitPrice() {
  UnitPrice.SetText(pricing::MakeMoney(UnitPrice.Text()));
  StoreSystem();
  if (Value(UnitPrice.Text()) != 0) {
    ColorFrame.Show();
  } else {
    ShowLabor();
    CopySystem.SetEnabled(true);
    PasteSystem.SetEnabled(!CopySys.Empty());
    MakeEUP();
    Label19.Show();
    Focus(Material);
  }
  refresh_.PrintReport();
}

// --- colour and notes ---

void PricingForm::PaintLine() {
  Line1.SetColour(pricing::ShownColour(LineColor));
}

void PricingForm::ChooseColour(const QString& code) {
  LineColor = code;
  ColorFrame.Hide();
  PaintLine();
  StoreSystem();
  EndSystem();
  refresh_.PrintReport();
}

// The background's number stands in the colour's place and is not saved until something else is. A
// test holds it.
void PricingForm::ChooseBackgroundNumber() {
  LineColor = QString::number(pricing::kBackgroundNumber);
  ColorFrame.Hide();
  Line1.SetColour(QString());
}

void PricingForm::EndSystem() {
  if (Material.Usable()) Focus(Material);
}

void PricingForm::ToggleNotes() {
  Toggle(PricingNotes);
  if (PricingNotes.Shown()) {
    Focus(PricingNotes);
  } else if (!Description.Empty()) {
    SaveSystem();
  }
}

// What was typed is not lost when the system is left with the box open.
void PricingForm::LeaveNotes() {
  const QString& name = Description.Text();
  if (PricingNotes.Text() != savedNotes_ && !name.isEmpty() && NameRefusal(name).isEmpty())
    WriteSystem();
}

// --- the store ---

SystemFile PricingForm::OpenSystem() const {
  return {Description.Text(), Units.Text(),        UnitPrice.Text(),
          LineColor,          PricingNotes.Text(), System.Rows()};
}

void PricingForm::SaveSystem() {
  StoreSystem();
  refresh_.PrintReport();
}

// The chains refresh the report behind their last step: a report that fails must not stop them in
// the middle.
void PricingForm::StoreSystem() {
  if (Description.Empty()) return;
  WriteSystem();
  MakeEUP();
}

void PricingForm::WriteSystem() {
  RefuseOrGoOn(Description.Text());
  while (System.Count() % kBlockRows != 0) System.Add(QString());
  for (int row = 0; row < System.Count(); ++row) {
    const bool spare = row % kBlockRows >= kBlockRows - 3;
    if (spare && !System.Row(row - row % kBlockRows).isEmpty() && !System.Row(row).isEmpty())
      System.SetRow(row, QString());
  }
  const QString text = SystemFileText(OpenSystem());
  kit_.files.SaveText(MasterSystemPath(kit_.shared, Description.Text()), text);
  if (!kit_.shared.JobID.isEmpty())
    kit_.files.SaveText(ProjectSystemPath(kit_.shared, Description.Text()), text);
}

bool PricingForm::LoadSystem() {
  const QString name = Description.Text();
  if (TrimmedBlanks(name).isEmpty()) return false;
  RefuseOrGoOn(name);
  QString text;
  int error = kPathNotFound;
  if (!kit_.shared.JobID.isEmpty())
    error = kit_.files.ReadText(ProjectSystemPath(kit_.shared, name), text);
  if (error == kFileNotFound || error == kPathNotFound)
    error = kit_.files.ReadText(MasterSystemPath(kit_.shared, name), text);
  if (error == kFileNotFound || error == kPathNotFound) {
    EmptySystem();
    HideLabor();
    FramePricing.Show();
    Focus(Units);
    return false;
  }
  if (error != kNoError)
    throw RunTimeFailure(
        error, QStringLiteral("The system \"%1\" can't be read: %2. Its file is "
                              "unchanged. Look at the rights of the file.")
                   .arg(name, error == kNoAccess ? QStringLiteral("there is no right to read it")
                                                 : ReasonText(error)));
  TakeSystem(ReadSystemFile(text));
  return true;
}

void PricingForm::TakeSystem(const SystemFile& file) {
  if (!file.description.isEmpty()) RefuseOrGoOn(file.description);
  EmptySystem();
  if (!file.description.isEmpty()) Description.SetText(file.description);
  Units.SetText(file.units);
  UnitPrice.SetText(file.unitPrice);
  LineColor = file.lineColor;
  PaintLine();
  PricingNotes.SetText(file.notes);
  System.SetRows(file.blocks);
  MaterialList.SetRows(MaterialNames(file.blocks));
  CopySystem.SetEnabled(true);
  FramePricing.Show();
  const bool priced = Value(UnitPrice.Text()) != 0;
  if (priced) {
    LandMFrame.Hide();
    EUP.Hide();
    Label9.Hide();
  } else {
    ShowLabor();
  }
  Focus(priced ? UnitPrice : Material);
  // A material that can't be priced is no reason not to open the system: the sum stands as far as
  // it came.
  EUP.SetCaption(pricing::EstimateUnitPrice(System.Rows(), MarkupTexts()).text);
  if (System.Empty()) EUP.SetCaption(QStringLiteral("0.00"));
}

// A project keeps its own copy: with one open the master file stays although the name leaves the
// list. A test holds it.
void PricingForm::DeleteSystem() {
  const QString name = Description.Text();
  if (name.isEmpty()) return;
  for (int row = DescriptionsList.Find(name); row >= 0; row = DescriptionsList.Find(name)) {
    DescriptionsList.Remove(row);
    SaveDescriptions();
  }
  if (!Refused(name)) {
    kit_.files.Remove(kit_.shared.JobID.isEmpty() ? MasterSystemPath(kit_.shared, name)
                                                  : ProjectSystemPath(kit_.shared, name));
  }
  ClearStuff();
  EmptySystem();
  HideLabor();
  Focus(Description);
}

}  // namespace tamo
