#include "common/desk.h"

#include <algorithm>

#include "common/failure.h"

namespace tamo {
namespace {

// Handlers that keep handing the focus to each other are stopped here; no chain of the program is
// near as long.
constexpr int kMostNestedMoves = 200;

}  // namespace

void Desk::Register(Form* form) {
  forms_.push_back(form);
}

void Desk::Unregister(Form* form) {
  std::erase(forms_, form);
  std::erase(order_, form);
  if (active_ == form) active_ = nullptr;
}

void Desk::Forget(const Control& control) {
  if (focused_ == &control) focused_ = nullptr;
}

Form* Desk::Find(const QString& name) const {
  for (Form* form : forms_) {
    if (form->Name() == name) return form;
  }
  return nullptr;
}

Control* Desk::Focused() const {
  if (focused_ == nullptr || !focused_->Usable() || !focused_->Owner().Visible()) return nullptr;
  return focused_;
}

void Desk::Show(Form& form, Form* owner) {
  form.owner_ = owner;
  if (!form.visible_) form.visible_ = true;
  form.Changed();
  Activate(form, true);
}

void Desk::Hide(Form& form) {
  if (!form.visible_) return;
  const bool wasActive = active_ == &form;
  if (wasActive) {
    leaving_ = &form;
    LoseFocus();
    leaving_ = nullptr;
  }
  if (!form.visible_) return;
  form.visible_ = false;
  std::erase(order_, &form);
  form.Changed();
  if (!wasActive) return;
  active_ = nullptr;
  if (form.onDeactivate) form.onDeactivate();
  if (active_ == nullptr && !order_.empty()) Activate(*order_.front(), true);
}

void Desk::LoseFocus() {
  Control* old = focused_;
  focused_ = nullptr;
  if (old == nullptr) return;
  old->Changed();
  if (old->onLostFocus) old->onLostFocus();
}

void Desk::Activate(Form& form, bool runRoutine) {
  std::erase(order_, &form);
  order_.insert(order_.begin(), &form);
  if (active_ == &form) return;
  Form* old = active_;
  if (old != nullptr) {
    Form* outer = leaving_;
    leaving_ = old;
    LoseFocus();
    leaving_ = outer;
  }
  active_ = &form;
  if (old != nullptr && old->onDeactivate) {
    old->onDeactivate();
    if (active_ != &form) return;
  }
  form.Changed();
  if (runRoutine && form.onActivate) form.onActivate();
  if (active_ == &form && focused_ == nullptr) Refocus(form);
}

// A form that comes back has the focus where it was, or on its first field.
void Desk::Refocus(Form& form) {
  Control* target = form.active_;
  if (target == nullptr || !target->Usable()) {
    target = nullptr;
    for (Control* control : form.controls_) {
      if (control->takesFocus && control->inTabOrder && control->Usable()) {
        target = control;
        break;
      }
    }
  }
  if (target != nullptr) MoveTo(*target, false);
}

void Desk::Focus(Control& control) {
  MoveTo(control, true);
}
void Desk::FocusWithoutActivation(Control& control) {
  MoveTo(control, false);
}

void Desk::MoveTo(Control& control, bool runRoutine) {
  if (!control.Usable() || !control.Owner().Visible()) return;
  Form& form = control.Owner();
  if (leaving_ != nullptr) {
    if (leaving_ == &form) form.active_ = &control;
    return;
  }
  if (focused_ == &control && active_ == &form) return;
  if (moves_ >= kMostNestedMoves) return;
  ++moves_;
  form.active_ = &control;
  if (active_ != &form) {
    Activate(form, runRoutine);
    if (active_ != &form || focused_ == &control || !control.Usable()) {
      --moves_;
      return;
    }
  }
  LoseFocus();
  // A handler that moved the focus meanwhile has the last word.
  if (focused_ == nullptr && active_ == &form && control.Usable() && form.Visible()) {
    focused_ = &control;
    form.active_ = &control;
    control.Changed();
    if (control.onGotFocus) control.onGotFocus();
  }
  --moves_;
}

}  // namespace tamo
