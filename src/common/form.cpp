#include "common/form.h"

#include "common/desk.h"

namespace tamo {

Form::Form(Desk& desk, const QString& name) : desk_(desk), name_(name), caption_(name) {
  desk_.Register(this);
}
Form::~Form() {
  desk_.Unregister(this);
}

void Form::SetCaption(const QString& caption) {
  if (caption_ == caption) return;
  caption_ = caption;
  Changed();
}

void Form::Show(Form* owner) {
  desk_.Show(*this, owner);
}
void Form::Hide() {
  desk_.Hide(*this);
}

Control* Form::Find(const QString& name) const {
  for (Control* control : controls_) {
    if (control->Name() == name) return control;
  }
  return nullptr;
}

MenuEntry* Form::FindMenu(const QString& name) const {
  for (MenuEntry* entry : menus_) {
    if (entry->Name() == name) return entry;
  }
  return nullptr;
}

void Form::AddText(const QString& name, const QString* text) {
  texts_.emplace_back(name, text);
}

const QString* Form::FindText(const QString& name) const {
  for (const auto& [textName, text] : texts_) {
    if (textName == name) return text;
  }
  return nullptr;
}

void Form::PopUp(MenuEntry& popup) {
  openPopup = &popup;
  Changed();
}

void Form::Changed() {
  if (observer) observer();
}

void Form::Register(Control* control) {
  controls_.push_back(control);
}
void Form::Forget(const Control& control) {
  if (active_ == &control) active_ = nullptr;
  std::erase_if(controls_, [&](const Control* other) { return other == &control; });
  desk_.Forget(control);
}

void Form::RegisterMenu(MenuEntry* entry) {
  menus_.push_back(entry);
}

}  // namespace tamo
