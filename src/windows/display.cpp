#include "windows/display.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QTimer>
#include <utility>

#include "windows/bodyarea.h"
#include "windows/listbinding.h"
#include "windows/look.h"

namespace tamo {

Binding::Binding(Display& display, Control& control, QWidget& widget)
    : display_(display), control_(control), widget_(widget) {
  control_.observer = [this] { display_.MarkDirty(*this); };
  widget_.installEventFilter(this);
}

Binding::~Binding() {
  control_.observer = nullptr;
}

Desk& Binding::GetDesk() const {
  return display_.GetDesk();
}

void Binding::Apply() {
  const bool shown = control_.ShownWithFrames();
  if (widget_.isHidden() == shown) widget_.setVisible(shown);
  if (widget_.testAttribute(Qt::WA_ForceDisabled) == control_.Enabled())
    widget_.setEnabled(control_.Enabled());
  if (widget_.toolTip() != control_.Hover()) widget_.setToolTip(control_.Hover());
}

bool Binding::TakeCommon(QEvent* event) {
  switch (event->type()) {
    case QEvent::KeyPress:
      return display_.TakeKey(*this, static_cast<QKeyEvent&>(*event));
    case QEvent::MouseButtonPress: {
      const auto* mouse = static_cast<QMouseEvent*>(event);
      if (mouse->button() != Qt::RightButton || !control_.onRightClick) return false;
      display_.popupPlace = mouse->globalPosition().toPoint();
      GetDesk().RightClick(control_);
      return true;
    }
    case QEvent::MouseButtonDblClick:
      if (static_cast<QMouseEvent*>(event)->button() != Qt::LeftButton || !control_.onDoubleClick)
        return false;
      GetDesk().DoubleClick(control_);
      return true;
    case QEvent::ContextMenu: {
      const auto* menu = static_cast<QContextMenuEvent*>(event);
      if (!control_.onRightClick) return false;
      if (menu->reason() == QContextMenuEvent::Keyboard) {
        display_.popupPlace = widget_.mapToGlobal(QPoint(kGrid, widget_.height()));
        GetDesk().RightClick(control_);
      }
      return true;
    }
    case QEvent::FocusIn: {
      // The mouse and Tab never move Qt's focus by themselves here; a mnemonic of a label does.
      if (display_.Syncing()) return false;
      if (static_cast<QFocusEvent*>(event)->reason() == Qt::ShortcutFocusReason) {
        GetDesk().UserFocus(control_);
      } else if (!control_.HasFocus()) {
        display_.RefocusLater();
      }
      return false;
    }
    default:
      return false;
  }
}

Display::Display(Desk& desk) : desk_(desk) {
  desk_.onSettled = [this] { SyncNow(); };
}

Display::~Display() {
  desk_.onSettled = nullptr;
}

void Display::Add(std::unique_ptr<Binding> binding) {
  byControl_[&binding->GetControl()] = binding.get();
  MarkDirty(*binding);
  bindings_.push_back(std::move(binding));
}

Binding* Display::Of(const Control& control) const {
  const auto found = byControl_.find(&control);
  return found == byControl_.end() ? nullptr : found->second;
}

void Display::MarkDirty(Binding& binding) {
  if (!binding.dirty_) {
    binding.dirty_ = true;
    dirty_.push_back(&binding);
  }
  MarkDirty();
}

void Display::MarkFormDirty(const Form& form) {
  for (const auto& binding : bindings_) {
    if (&binding->GetControl().Owner() == &form) MarkDirty(*binding);
  }
}

// Inside an event nothing is queued: the event's end brings everything up to date.
void Display::MarkDirty() {
  if (queued_ || syncing_ > 0 || desk_.InEvent()) return;
  queued_ = true;
  QTimer::singleShot(0, this, [this] {
    queued_ = false;
    if (!desk_.InEvent()) SyncNow();
  });
}

void Display::ApplyContents() {
  ++syncing_;
  while (!dirty_.empty()) {
    const std::vector<Binding*> now = std::exchange(dirty_, {});
    for (Binding* binding : now) {
      binding->dirty_ = false;
      binding->Apply();
      applied_.push_back(binding);
    }
  }
  --syncing_;
}

void Display::SyncNow() {
  if (syncing_ > 0) return;
  ++syncing_;
  ApplyContents();
  if (syncWindows) syncWindows();
  ApplyContents();
  SyncFocus();
  for (Binding* binding : std::exchange(applied_, {})) binding->ApplyFocus();
  --syncing_;
  if (afterSync) afterSync();
}

void Display::SyncFocus() {
  Form* active = desk_.Active();
  if (active == nullptr || !windowOf) return;
  QWidget* window = windowOf(*active);
  if (window == nullptr || !window->isVisible()) return;
  Control* focused = desk_.Focused();
  QWidget* now = window->focusWidget();
  const bool moved = focused != shownFocus_;
  shownFocus_ = focused;
  if (!moved && now != nullptr && now->isVisible() && now->property(kOwnFocus).toBool()) return;
  Binding* binding = focused == nullptr ? nullptr : Of(*focused);
  QWidget* target = binding == nullptr ? window : &binding->Widget();
  if (now != target || (window->isActiveWindow() && !target->hasFocus()))
    target->setFocus(Qt::OtherFocusReason);
  if (moved && target != window) BringIntoSight(*target);
}

void Display::RefocusLater() {
  QTimer::singleShot(0, this, [this] {
    if (QApplication::activePopupWidget() != nullptr) return;
    ++syncing_;
    SyncFocus();
    --syncing_;
  });
}

namespace {

bool IsTyped(const Key& key) {
  return key.Is(Key::Name::Character) || key.Is(Key::Name::Space);
}

bool EditsText(const Key& key, const TextField& field) {
  if (IsTyped(key) || key.Is(Key::Name::Backspace) || key.Is(Key::Name::Delete)) return true;
  return field.multiLine && (key.Is(Key::Name::Enter) || key.Is(Key::Name::LineFeed));
}

bool IsArrow(const Key& key) {
  return key.Is(Key::Name::Up) || key.Is(Key::Name::Down) || key.Is(Key::Name::Left) ||
         key.Is(Key::Name::Right);
}

bool IsTakingBack(const Key& key) {
  return key.Is(Key::Name::TakeBack) || key.Is(Key::Name::BringBack);
}

// Ctrl+Z; Ctrl+Y, or Ctrl+Shift+Z.
std::optional<Key> TakingBackKey(const QKeyEvent& event) {
  const bool z = event.key() == Qt::Key_Z;
  if (!z && event.key() != Qt::Key_Y) return std::nullopt;
  const bool shift = (event.modifiers() & Qt::ShiftModifier) != 0;
  return Key::Named(z && !shift ? Key::Name::TakeBack : Key::Name::BringBack);
}

}  // namespace

std::optional<Key> KeyOf(const QKeyEvent& event) {
  const Qt::KeyboardModifiers held =
      event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
  if (held == Qt::ControlModifier) {
    if (const auto key = TakingBackKey(event)) return key;
  }
  switch (event.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
      if (held == Qt::ControlModifier) return Key::Named(Key::Name::LineFeed);
      return held == Qt::NoModifier ? std::optional(Key::Named(Key::Name::Enter)) : std::nullopt;
    case Qt::Key_Backtab:
      return Key::Named(Key::Name::BackTab);
    case Qt::Key_Tab:
      if (held != Qt::NoModifier) return std::nullopt;
      return Key::Named((event.modifiers() & Qt::ShiftModifier) != 0 ? Key::Name::BackTab
                                                                     : Key::Name::Tab);
    case Qt::Key_Escape:
      return Key::Named(Key::Name::Escape);
    case Qt::Key_Backspace:
      return Key::Named(Key::Name::Backspace);
    case Qt::Key_Delete:
      // With Shift it cuts, as the platform has it.
      if ((event.modifiers() & Qt::ShiftModifier) != 0) return std::nullopt;
      return Key::Named(Key::Name::Delete);
    case Qt::Key_Up:
      return Key::Named(Key::Name::Up);
    case Qt::Key_Down:
      return Key::Named(Key::Name::Down);
    case Qt::Key_Left:
      return Key::Named(Key::Name::Left);
    case Qt::Key_Right:
      return Key::Named(Key::Name::Right);
    default:
      break;
  }
  // The right Alt key of many keyboards, which types characters, arrives as Ctrl and Alt together.
  const bool types = held == Qt::NoModifier || held == (Qt::ControlModifier | Qt::AltModifier);
  const QString text = event.text();
  if (!types || text.isEmpty() || !(text[0].isPrint() || text[0].isSurrogate()))
    return std::nullopt;
  return Key::Typed(text[0]);
}

namespace {

// Keys that a field's widget keeps for itself, unless something lies over the field.
std::optional<Key> WalkKeyOf(const QKeyEvent& event) {
  if ((event.modifiers() & ~Qt::KeypadModifier) != Qt::NoModifier) return std::nullopt;
  if (event.key() == Qt::Key_Down) return Key::Named(Key::Name::Down);
  if (event.key() == Qt::Key_Up) return Key::Named(Key::Name::Up);
  if (event.key() == Qt::Key_End) return Key::Named(Key::Name::End);
  return std::nullopt;
}

}  // namespace

bool Display::TakeKey(Binding& binding, QKeyEvent& event) {
  Control& control = binding.GetControl();
  auto* field = dynamic_cast<TextField*>(&control);
  if (const std::optional<Key> walk = field == nullptr ? std::nullopt : WalkKeyOf(event)) {
    if (desk_.TakenFirst(control, *walk)) return true;
  }
  const bool list = dynamic_cast<OrderedList*>(&control) != nullptr;
  if (!list && TakeListKey(control.Owner(), field, event)) return true;
  const std::optional<Key> key = KeyOf(event);
  if (!key) return false;
  if (field != nullptr && IsArrow(*key)) return false;
  // A form that takes entries back takes the key; elsewhere the field takes back its typing.
  if (IsTakingBack(*key)) return desk_.HandleKey(control, *key);
  if (field != nullptr && EditsText(*key, *field)) {
    if (!IsTyped(*key)) return desk_.HandleKey(control, *key);
    for (const QChar c : event.text()) {
      if (desk_.HandleKey(control, Key::Typed(c))) return true;
    }
    return false;
  }
  if (field == nullptr && !list && IsArrow(*key)) return desk_.HandleKey(control, *key);
  desk_.PressKey(control, *key);
  return true;
}

bool Display::TakeWindowKey(Form& form, QKeyEvent& event) {
  if (TakeListKey(form, nullptr, event)) return true;
  const std::optional<Key> key = KeyOf(event);
  if (!key || (!key->Is(Key::Name::Tab) && !key->Is(Key::Name::BackTab))) return false;
  desk_.MoveFocus(key->Is(Key::Name::Tab));
  return true;
}

// A list that takes no focus is walked from the field it belongs to, or, when it belongs to none,
// from any field of its form. The walk marks a row of the widget only; Enter is then the click on
// it.
bool Display::TakeListKey(Form& form, TextField* field, QKeyEvent& event) {
  ListBinding* own = nullptr;
  ListBinding* free = nullptr;
  for (const auto& binding : bindings_) {
    auto* list = dynamic_cast<ListBinding*>(binding.get());
    if (list == nullptr || &list->GetControl().Owner() != &form || list->List().Empty()) continue;
    if (field != nullptr && list->Under() == field && (own == nullptr || list->List().Shown()))
      own = list;
    if (list->Under() == nullptr && !list->List().takesFocus && list->List().Usable() &&
        list->Picks())
      free = list;
  }
  ListBinding* list = own != nullptr ? own : free;
  if (list == nullptr || (own == nullptr && field != nullptr && field->multiLine)) return false;
  if (!list->List().Usable()) {
    if (event.key() != Qt::Key_Down || !list->List().Enabled()) return false;
    desk_.Dispatch([list] { list->List().Show(); });
    if (list->List().Shown()) list->Walk(0);
    return true;
  }
  return list->TakeWalkKey(event);
}

}  // namespace tamo
