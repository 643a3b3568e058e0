#include "pricing/materialfields.h"

#include <algorithm>

namespace tamo {
namespace {

bool Edits(const Key& key) {
  return !key.dropped && (key.Is(Key::Name::Character) || key.Is(Key::Name::Space) ||
                          key.Is(Key::Name::Backspace) || key.Is(Key::Name::Delete));
}

}  // namespace

MaterialFields::MaterialFields(MaterialControls& controls)
    : controls_(controls), fields_{&controls.OrderUnits, &controls.Price, &controls.UPO,
                                   &controls.MnhrPO,     &controls.Waste, &controls.WageRate} {}

void MaterialFields::WatchKeys() {
  for (size_t i = 0; i < kFillables; ++i) {
    fields_[i]->onKey = [this, i, step = fields_[i]->onKey](Key& key) {
      if (step) step(key);
      typed_[i] = typed_[i] || Edits(key);
    };
  }
}

bool MaterialFields::Typed(Fillable field) const {
  const QString& text = fields_[field]->Text();
  return !text.isEmpty() && (typed_[field] || text != given_[field]);
}

void MaterialFields::Fill(Fillable field, const QString& text) {
  fields_[field]->SetText(text);
  given_[field] = text;
  typed_[field] = false;
}

void MaterialFields::Respell(Fillable field, const QString& text) {
  const bool typed = Typed(field);
  fields_[field]->SetText(text);
  if (!typed) given_[field] = text;
}

void MaterialFields::Clear() {
  controls_.Material.Clear();
  for (TextField* field : fields_) field->Clear();
  given_.fill(QString());
  typed_.fill(false);
}

bool MaterialFields::AllEmpty() const {
  return std::all_of(fields_.begin(), fields_.end(),
                     [](const TextField* field) { return field->Empty(); });
}

void MaterialFields::Take(const MaterialBlock& block) {
  controls_.Material.SetText(block.material);
  Fill(kOrderUnits, block.orderUnits);
  Fill(kPrice, block.price);
  Fill(kUpo, block.upo);
  Fill(kMnhrPO, block.mnhrPO);
  Fill(kWaste, block.waste);
  Fill(kWageRate, block.wageRate);
}

MaterialBlock MaterialFields::Block() const {
  MaterialBlock block;
  block.material = controls_.Material.Text();
  block.orderUnits = controls_.OrderUnits.Text();
  block.price = controls_.Price.Text();
  block.upo = controls_.UPO.Text();
  block.mnhrPO = controls_.MnhrPO.Text();
  block.waste = controls_.Waste.Text();
  block.wageRate = controls_.WageRate.Text();
  return block;
}

bool MaterialFields::FillFrom(const MaterialFile& file, int line, Fillable field,
                              const QString& text) {
  if (file.reached < line || Typed(field)) return false;
  Fill(field, text);
  return true;
}

}  // namespace tamo
