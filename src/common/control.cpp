#include "common/control.h"

#include <algorithm>

#include "common/desk.h"
#include "common/failure.h"
#include "common/form.h"

namespace tamo {

Control::Control(Form& form, const QString& name) : form_(form), name_(name) {}
Control::~Control() {
  form_.Forget(*this);
}

QString Control::FullName() const {
  return form_.Name() + QLatin1Char('.') + name_;
}

void Control::SetShown(bool shown) {
  if (shown_ == shown) return;
  shown_ = shown;
  Changed();
}

void Control::SetEnabled(bool enabled) {
  if (enabled_ == enabled) return;
  enabled_ = enabled;
  Changed();
}

bool Control::ShownWithFrames() const {
  if (!shown_) return false;
  for (const Frame* frame = container_; frame != nullptr; frame = frame->Container()) {
    if (!frame->Shown()) return false;
  }
  return true;
}

void Control::SetHover(const QString& text) {
  if (hover_ == text) return;
  hover_ = text;
  Changed();
}

bool Control::HasFocus() const {
  return form_.GetDesk().Focused() == this;
}

void Control::Changed() {
  if (observer) observer();
}

Frame::Frame(Form& form, const QString& name) : Control(form, name) {
  form.Register(this);
  takesFocus = false;
  inTabOrder = false;
}

void Frame::SetCaption(const QString& caption) {
  if (caption_ == caption) return;
  caption_ = caption;
  Changed();
}

Captioned::Captioned(Form& form, const QString& name, const QString& caption)
    : Control(form, name), caption_(caption) {}

void Captioned::SetCaption(const QString& caption) {
  if (caption_ == caption) return;
  caption_ = caption;
  Changed();
}

Label::Label(Form& form, const QString& name, const QString& caption)
    : Captioned(form, name, caption) {
  form.Register(this);
  takesFocus = false;
  inTabOrder = false;
}

Button::Button(Form& form, const QString& name, const QString& caption)
    : Captioned(form, name, caption) {
  form.Register(this);
}

CheckBox::CheckBox(Form& form, const QString& name, const QString& caption)
    : Captioned(form, name, caption) {
  form.Register(this);
}

void CheckBox::SetValue(int value) {
  if (value_ == value) return;
  value_ = value;
  Changed();
  if (onChange) onChange();
}

Option::Option(Form& form, const QString& name, const QString& caption, int group)
    : Captioned(form, name, caption), group_(group) {
  form.Register(this);
}

void Option::SetSelected(bool selected) {
  if (selected) {
    for (Control* other : Owner().Controls()) {
      auto* option = dynamic_cast<Option*>(other);
      if (option != nullptr && option != this && option->group_ == group_)
        option->SetSelected(false);
    }
  }
  if (selected_ == selected) return;
  selected_ = selected;
  Changed();
}

Swatch::Swatch(Form& form, const QString& name, const QString& caption)
    : Captioned(form, name, caption) {
  form.Register(this);
  takesFocus = false;
}

void Swatch::SetColour(const QString& code) {
  if (colour_ == code) return;
  colour_ = code;
  Changed();
}

void Swatch::SetWidth(int width) {
  if (width_ == width) return;
  width_ = width;
  Changed();
}

ScrollBar::ScrollBar(Form& form, const QString& name, int least, int most, int value)
    : Control(form, name), least_(least), most_(most), value_(value) {
  form.Register(this);
}

void ScrollBar::SetValue(int value) {
  value = std::clamp(value, least_, most_);
  if (value_ == value) return;
  value_ = value;
  Changed();
  if (onChange) onChange();
}

FileBrowser::FileBrowser(Form& form, const QString& name, Kind kind, const QString& pattern)
    : Control(form, name), kind_(kind), pattern_(pattern) {
  form.Register(this);
}

void FileBrowser::SetFolder(const QString& folder) {
  if (folder_ == folder) return;
  folder_ = folder;
  file_.clear();
  Changed();
}

void FileBrowser::SetFile(const QString& name) {
  if (file_ == name) return;
  file_ = name;
  Changed();
}

MenuEntry::MenuEntry(Form& form, const QString& name, const QString& caption, MenuEntry* parent,
                     bool popup)
    : Captioned(form, name, caption), parent_(parent), popup_(popup) {
  form.RegisterMenu(this);
  takesFocus = false;
  inTabOrder = false;
  if (parent != nullptr) parent->children_.push_back(this);
}

bool MenuEntry::Choosable() const {
  if (!Shown() && !popup_) return false;
  if (!Enabled()) return false;
  return parent_ == nullptr || parent_->Choosable();
}

}  // namespace tamo
