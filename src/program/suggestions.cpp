#include "program/suggestions.h"

#include <algorithm>

namespace tamo {

Suggestions::Suggestions(const Kit& kit, const std::vector<Source>& sources) : kit_(kit) {
  for (const Source& source : sources) sources_.push_back({source, {}});
}

Suggestions::Indexed* Suggestions::Of(const Control& control) {
  for (Indexed& indexed : sources_) {
    if (&indexed.source.field == &control) return &indexed;
  }
  return nullptr;
}

void Suggestions::Close() {
  source_ = nullptr;
  rows_.clear();
  walked_ = -1;
}

void Suggestions::Edited(TextField& field) {
  Close();
  Indexed* indexed = Of(field);
  if (indexed == nullptr || field.readOnly || !field.HasFocus()) return;
  uses_.ReadOn();
  const OrderedList& names = indexed->source.names;
  if (!indexed->made || indexed->revision != names.RowsRevision()) {
    indexed->index.SetNames(names.Rows());
    indexed->revision = names.RowsRevision();
    indexed->made = true;
  }
  text_ = field.Text();
  rows_ = indexed->index.Matches(text_, kMost, uses_.Of(indexed->source.kind));
  if (!rows_.isEmpty()) source_ = &indexed->source;
}

void Suggestions::Follow() {
  TextField* field = Field();
  if (field != nullptr && (!field->HasFocus() || field->Text() != text_)) Close();
}

bool Suggestions::Walk(int row) {
  walked_ = std::min(row, static_cast<int>(rows_.size()) - 1);
  return true;
}

bool Suggestions::AtTextEnd() const {
  const TextField& field = source_->field;
  return field.SelectionStart() + field.SelectionLength() == field.Text().size();
}

bool Suggestions::TakeKey(const Control& control, const Key& key) {
  if (key.IsEnter() && walked_ < 0) {
    const Indexed* indexed = Of(control);
    if (indexed != nullptr) uses_.Add(indexed->source.kind, indexed->source.field.Text());
    Close();
    return false;
  }
  if (Field() != &control) return false;
  switch (key.name) {
    case Key::Name::Down:
      return Walk(walked_ + 1);
    case Key::Name::Up:
      return walked_ >= 0 && Walk(walked_ - 1);
    case Key::Name::End:
      if (walked_ < 0 && !AtTextEnd()) return false;
      Fill(std::max(walked_, 0));
      return true;
    case Key::Name::Enter:
      Fill(walked_);
      return true;
    case Key::Name::Escape:
      Close();
      return true;
    default:
      return false;
  }
}

void Suggestions::Take(int row) {
  if (row < 0 || row >= rows_.size()) return;
  kit_.desk.Dispatch([this, row] { Fill(row); });
}

void Suggestions::Fill(int row) {
  TextField& field = source_->field;
  const QString name = rows_[row];
  Close();
  field.SetByUser(name, static_cast<int>(name.size()));
}

}  // namespace tamo
