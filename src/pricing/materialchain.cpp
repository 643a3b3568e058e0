#include "common/failure.h"
#include "common/numbers.h"
#include "common/paths.h"
#include "pricing/pricingform.h"
#include "pricing/unitprice.h"
#include "records/materialfile.h"

// The chain of a material, from its name to its wage rate, and the list of the system's materials.

namespace tamo {

void PricingForm::SetUpMaterialChain() {
  OnEnter(Material, Keys::FileName, [this] { EnterMaterial(); });
  Material.onGotFocus = [this] { MaterialGotFocus(); };
  Material.onLostFocus = [this] { MaterialLostFocus(); };
  Material.onClick = [this] { Toggle(MaterialsList); };

  OnEnter(OrderUnits, Keys::Any, [this] { EnterOrderUnits(); });
  OnGotFocus(OrderUnits, [this] {
    OrderUnits.SetHover(QStringLiteral("Order units used when ordering ") + Material.Text() +
                        QLatin1Char('.'));
  });
  OrderUnits.onLostFocus = [this] { oUnitsList.Hide(); };
  OrderUnits.onClick = [this] {
    if (MaterialList.Index() < 0 && !MaterialList.Empty())
      MaterialList.SetIndex(MaterialList.Count() - 1);
    Toggle(oUnitsList);
  };

  OnEnter(Price, Keys::Money, [this] { EnterPrice(); });
  OnGotFocus(Price, [this] {
    pricing::Prompts prompts = TakePrompts();
    prompts.AtPrice(Names());
    PutPrompts(prompts);
  });
  Price.onLostFocus = [this] {
    if (UPO.Usable()) Focus(UPO);
  };

  OnEnter(Waste, Keys::Whole, [this] { Focus(WageRate); });
  OnGotFocus(Waste);
  OnEnter(WageRate, Keys::Money, [this] { FinishMaterial(); });
  OnGotFocus(WageRate);
  WageRate.onLostFocus = [this] { WagesList.Hide(); };
  WageRate.onClick = [this] { Toggle(WagesList); };

  MaterialList.onSelect = [this] { SelectMaterial(); };
  MaterialList.onClick = [this] {
    if (Material.Usable()) Focus(Material);
  };
  MaterialList.onRightClick = [this] {
    if (MaterialList.Index() >= 0) PopUp(MaterialMenu);
  };
  MaterialDelete.onClick = [this] { DeleteMaterial(); };
  MaterialInsert.onClick = [this] { InsertMaterial(); };
}

// --- Material ---

void PricingForm::MaterialGotFocus() {
  if (Description.Empty()) {
    FramePricing.Show();
    Focus(Description);
    return;
  }
  if (Material.Empty() && OrderUnits.Empty()) {
    Waste.Clear();
    WageRate.Clear();
  }
  Material.SelectAll();
  FramePricing.Show();
  pricing::Prompts prompts = TakePrompts();
  prompts.AtMaterial(Names());
  PutPrompts(prompts);
  Label5.Show();
  Label8.Show();
  if (System.Empty()) StepOn();
  ShowMaterialHover();
}

void PricingForm::ShowMaterialHover() {
  const int row = MaterialList.Index();
  if (row < 0) return;
  Material.SetHover(row < nth.Count()
                        ? nth.Row(row) + QStringLiteral(" material used in ") + Description.Text()
                        : QStringLiteral("Material #") + QString::number(row + 1) +
                              QStringLiteral(" used in ") + Description.Text());
}

void PricingForm::MaterialLostFocus() {
  MaterialsList.Hide();
  if (!Material.Empty()) {
    KeepMaterialName();
  } else if (Description.Usable() && MaterialsList.Index() < 0) {
    Focus(Description);
  }
}

// A name that can't be a file's name is told at Enter; on leaving it is only not kept.
void PricingForm::KeepMaterialName() {
  if (NameRefusal(Material.Text()).isEmpty())
    AddName(MaterialsList, Material.Text(), &PricingForm::SaveMaterials);
}

void PricingForm::EnterMaterial() {
  if (Material.Empty()) {
    EndOfSystem();
    return;
  }
  if (Refused(Material.Text())) return;
  bool untouched = true;
  for (const TextField* field : fillable_) untouched = untouched && field->Empty();
  const bool known = untouched && materials_.Find(Material.Text()) >= 0;
  if (known || (library_ && MaterialList.Index() >= 0 && MaterialList.Selected().isEmpty()))
    LoadMaterial();
  KeepMaterialName();
  MaterialsList.Hide();
  Focus(OrderUnits);
}

void PricingForm::EndOfSystem() {
  ClearStuff();
  MaterialsList.Hide();
  EmptySystem();
  HideLabor();
  CopySystem.SetEnabled(false);
  PricingNotes.Hide();
  Focus(Description);
  ColorFrame.Hide();
}

void PricingForm::ChooseMaterial(const QString& name) {
  Material.SetText(name);
  if (!name.isEmpty() && !Refused(name) && MaterialList.Index() >= MaterialList.Count() - 1)
    LoadMaterial();
  // The field mostly has the focus already; what comes with it (the whole name selected, the
  // prompts) is due all the same.
  if (Material.HasFocus()) {
    MaterialGotFocus();
  } else {
    Focus(Material);
  }
}

// --- the material library ---

bool PricingForm::Typed(Fillable field) const {
  const QString& text = fillable_[field]->Text();
  return !text.isEmpty() && text != given_[field];
}

void PricingForm::Fill(Fillable field, const QString& text) {
  fillable_[field]->SetText(text);
  given_[field] = text;
}

void PricingForm::ClearSomeStuff() {
  Material.Clear();
  for (TextField* field : fillable_) field->Clear();
  given_.fill(QString());
  library_ = false;
  ratioTag_.clear();
  laborTag_.clear();
}

void PricingForm::FillFrom(const MaterialBlock& block) {
  Material.SetText(block.material);
  Fill(kOrderUnitsField, block.orderUnits);
  Fill(kPriceField, block.price);
  Fill(kUpoField, block.upo);
  Fill(kMnhrPOField, block.mnhrPO);
  Fill(kWasteField, block.waste);
  Fill(kWageRateField, block.wageRate);
  library_ = false;
  ratioTag_ = IsRatioTag(block.upoTag) ? block.upoTag : QString();
  laborTag_ = IsLaborTag(block.mnhrTag) ? block.mnhrTag : QString();
}

void PricingForm::LoadMaterial() {
  library_ = true;
  RefuseOrGoOn(Material.Text());
  QString text;
  if (kit_.files.ReadText(MaterialPath(kit_.shared, Material.Text()), text) != kNoError) return;
  const MaterialFile file = ReadMaterialFile(text);
  const MaterialBlock& block = file.block;
  // Lines of the file, from 1: a line that was not reached, or whose field was typed in, fills
  // nothing.
  const auto fill = [this, &file](int line, Fillable field, const QString& value) {
    if (file.reached < line || Typed(field)) return false;
    Fill(field, value);
    return true;
  };
  if (file.reached >= 1) Material.SetText(block.material);
  fill(2, kOrderUnitsField, block.orderUnits);
  fill(3, kPriceField, block.price);
  pricing::Prompts prompts = TakePrompts();
  if (fill(4, kUpoField, block.upo) && IsRatioTag(block.upoTag)) {
    ratioTag_ = block.upoTag;
    prompts.AfterFileRatioTag(Names(), ratioTag_);
  }
  if (fill(6, kMnhrPOField, block.mnhrPO) && IsLaborTag(block.mnhrTag)) {
    laborTag_ = block.mnhrTag;
    prompts.AfterFileLaborTag(Names(), laborTag_);
  }
  PutPrompts(prompts);
  fill(8, kWasteField, block.waste);
  fill(9, kWageRateField, block.wageRate);
}

void PricingForm::SaveMaterial() {
  RefuseOrGoOn(Material.Text());
  const pricing::Prompts prompts = TakePrompts();
  const QStringList ratio =
      ratioTag_.isEmpty() ? pricing::RatioTagLines(prompts, Names()) : QStringList(ratioTag_);
  const QStringList labor =
      laborTag_.isEmpty() ? pricing::LaborTagLines(prompts, Names()) : QStringList(laborTag_);
  kit_.files.SaveText(MaterialPath(kit_.shared, Material.Text()),
                      MaterialFileText(BlockOfFields(), ratio, labor));
}

// --- OrderUnits and Price ---

// Where the block of the material in work stands, or will stand.
int PricingForm::PlaceOfMaterial() const {
  if (MaterialList.Index() >= 0) return MaterialList.Index() * kBlockRows;
  return (System.Count() + kBlockRows - 1) / kBlockRows * kBlockRows;
}

void PricingForm::EnterOrderUnits() {
  if (OrderUnits.Text().trimmed().isEmpty()) return;
  pricing::Prompts prompts = TakePrompts();
  prompts.AppendOrderUnits(Names());
  PutPrompts(prompts);
  if (const QString reserved = pricing::ReservedTerm(Names()); !reserved.isEmpty()) {
    kit_.desk.GetMessages().Tell(reserved);
    Focus(OrderUnits);
    return;
  }
  AddName(oUnitsList, OrderUnits.Text(), &PricingForm::SaveOrderUnits);
  oUnitsList.Hide();
  position_ = PlaceOfMaterial();
  LabelPrice.SetCaption(QStringLiteral("Cost per ") + OrderUnits.Text() + QLatin1Char(':'));
  SetUpoUpm();
  Focus(Price);
}

void PricingForm::EnterPrice() {
  const bool typed = Typed(kPriceField);
  Price.SetText(pricing::MakeMoney(Price.Text()));
  if (!typed) given_[kPriceField] = Price.Text();
  Focus(UPO);
}

// --- WageRate: the material is finished ---

MaterialBlock PricingForm::BlockOfFields() const {
  MaterialBlock block;
  block.material = Material.Text();
  block.orderUnits = OrderUnits.Text();
  block.price = Price.Text();
  block.upo = UPO.Text();
  block.mnhrPO = MnhrPO.Text();
  block.waste = Waste.Text();
  block.wageRate = WageRate.Text();
  return block;
}

// A block stands at `row`, more than an inserted place for one.
bool PricingForm::Stored(int row) const {
  return row >= 0 && !RowAt(System.Rows(), row).isEmpty();
}

void PricingForm::FinishMaterial() {
  RefuseOrGoOn(Material.Text());
  if (!Description.Empty()) RefuseOrGoOn(Description.Text());
  WageRate.SetText(pricing::MakeMoney(WageRate.Text()));
  WagesList.Hide();
  SaveMaterial();
  AddName(WagesList, WageRate.Text(), &PricingForm::SaveWagesList);

  position_ = PlaceOfMaterial();
  if (position_ >= System.Count()) {
    AddBlock();
    StepOn();
    position_ = PlaceOfMaterial();
    StoreSystem();
  } else {
    OverwriteBlock();
    StoreSystem();
    StepOn();
  }
  Focus(Material);
  refresh_.PrintReport();
}

void PricingForm::AddBlock() {
  const pricing::Prompts prompts = TakePrompts();
  MaterialBlock block = BlockOfFields();
  block.upoTag = ratioTag_.isEmpty() ? pricing::RatioTagOfNewBlock(prompts, Names()) : ratioTag_;
  block.mnhrTag = laborTag_.isEmpty() ? pricing::LaborTagOfNewBlock(prompts) : laborTag_;
  // A prompt that was never set tells a new block nothing; the material file takes it for a count
  // per manhour, and so does the block.
  if (block.mnhrTag.isEmpty()) block.mnhrTag = pricing::LaborTagLines(prompts, Names()).value(0);
  while (System.Count() % kBlockRows != 0) System.Add(QString());
  System.AddAll(block.Rows());
  const int last = MaterialList.Count() - 1;
  if (last >= 0 && MaterialList.Row(last).isEmpty()) {
    MaterialList.Insert(last, block.material);
  } else {
    MaterialList.Add(block.material);
  }
  ClearSomeStuff();
}

void PricingForm::OverwriteBlock() {
  const pricing::Prompts prompts = TakePrompts();
  const MaterialBlock old = MaterialBlock::At(System.Rows(), position_);
  MaterialBlock block = BlockOfFields();
  block.upoTag =
      ratioTag_.isEmpty() ? pricing::RatioTagOfBlock(prompts, Names(), old.upoTag) : ratioTag_;
  // A place that was only inserted has no tag that could stand.
  if (block.upoTag.isEmpty()) block.upoTag = pricing::RatioTagOfNewBlock(prompts, Names());
  block.mnhrTag = laborTag_.isEmpty() ? pricing::LaborTagOfBlock(prompts) : laborTag_;
  while (System.Count() < position_ + kBlockRows) System.Add(QString());
  const QStringList rows = block.Rows();
  for (int i = 0; i < kBlockRows - 3; ++i) System.SetRow(position_ + i, rows[i]);
  MaterialList.SetRow(MaterialList.Index(), block.material);
}

// On to the next material: the following row comes up; behind the last one an empty row is made
// for a new one.
void PricingForm::StepOn() {
  const int row = MaterialList.Index();
  const int last = MaterialList.Count() - 1;
  const bool emptyLast = last >= 0 && MaterialList.Row(last).isEmpty();
  if (row >= 0 && row < last) {
    if (!emptyLast && row == last - 1) MaterialList.Add(QString());
    MaterialList.SetIndex(row + 1);
    ShowSystem();
    return;
  }
  if (!emptyLast) MaterialList.Add(QString());
  MaterialList.SetIndex(MaterialList.Count() - 1);
}

// --- the list of the system's materials ---

void PricingForm::SelectMaterial() {
  const int row = MaterialList.Index();
  if (row < 0) return;
  if (row < nth.Count()) nth.SetIndex(row);
  position_ = row * kBlockRows;
  FillFrom(MaterialBlock::At(System.Rows(), position_));
  if (Material.Empty()) {
    Waste.Clear();
    WageRate.Clear();
  }
  if (Material.Usable()) Focus(Material);
  // The next name typed replaces the one that came up.
  if (Material.HasFocus()) Material.SelectAll();
  SetUpoUpm();
  ShowMaterialHover();
}

void PricingForm::ShowSystem() {
  if (MaterialList.Index() < 0) return;
  position_ = MaterialList.Index() * kBlockRows;
  const MaterialBlock block = MaterialBlock::At(System.Rows(), position_);
  FillFrom(block);
  pricing::Prompts prompts = TakePrompts();
  prompts.ShowRatio(Names(), block.upoTag);
  prompts.ShowLabor(Names(), block.mnhrTag);
  PutPrompts(prompts);
  SetUpoUpm();
}

void PricingForm::DeleteMaterial() {
  const int row = MaterialList.Index();
  if (row < 0) return;
  const int place = row * kBlockRows;
  for (int i = 0; i < kBlockRows && place < System.Count(); ++i) System.Remove(place);
  MaterialList.Remove(row);
  if (row < MaterialList.Count()) {
    MaterialList.SetIndex(row);
  } else {
    ClearSomeStuff();
    position_ = PlaceOfMaterial();
  }
  StoreSystem();
  if (System.Empty() && Material.HasFocus()) StepOn();
  refresh_.PrintReport();
}

// Nothing is saved until the material is finished.
void PricingForm::InsertMaterial() {
  const int row = MaterialList.Index();
  if (row < 0) return;
  const int place = row * kBlockRows;
  while (System.Count() < place) System.Add(QString());
  for (int i = 0; i < kBlockRows; ++i) System.Insert(place, QString());
  MaterialList.Insert(row, QString());
  MaterialList.SetIndex(row);
}

// --- the estimated unit price ---

void PricingForm::MakeEUP() {
  const pricing::EstimatedPrice price = pricing::EstimateUnitPrice(System.Rows(), MarkupTexts());
  EUP.SetCaption(price.text);
  if (price.stoppedAt < 0) return;
  const QString material = RowAt(System.Rows(), price.stoppedAt * kBlockRows);
  BringUp(price.stoppedAt, price.labor);
  throw RunTimeFailure(
      kDivisionByZero,
      QStringLiteral("The unit price of \"%1\" can't be estimated: the material \"%2\" has 0, or "
                     "no number, in "
                     "the field \"%3\". Enter another number there.")
          .arg(Description.Text(), material, (price.labor ? LabelMnhr : LabelUPO).Caption()));
}

// The number to correct, with the material that it belongs to in the fields.
void PricingForm::BringUp(int block, bool labor) {
  FramePricing.Show();
  ShowLabor();
  if (block < MaterialList.Count()) MaterialList.SetIndex(block);
  Focus(labor ? MnhrPO : UPO);
}

double PricingForm::ActualProfit() const {
  return pricing::ActualProfit(MarkupTexts());
}

}  // namespace tamo
