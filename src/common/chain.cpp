#include "common/chain.h"

namespace tamo {
namespace {

bool IsDigit(QChar c) {
  return c >= QLatin1Char('0') && c <= QLatin1Char('9');
}

}  // namespace

bool Passes(const Key& key, Keys keys) {
  if (!key.Is(Key::Name::Character) && !key.Is(Key::Name::Space)) return true;
  const QChar c = key.character;
  switch (keys) {
    case Keys::Any:
      return true;
    case Keys::FileName:
      return !QStringLiteral("\\,\"/").contains(c);
    case Keys::Number:
      return IsDigit(c) || c == QLatin1Char('.') || c == QLatin1Char('-');
    case Keys::WholeNumber:
      return IsDigit(c) || c == QLatin1Char('-');
    case Keys::Digits:
      return IsDigit(c);
  }
  return true;
}

void OnEnter(TextField& field, Step step) {
  OnEnter(field, Keys::Any, std::move(step));
}

void OnEnter(TextField& field, Keys keys, Step step) {
  field.onKey = [&field, keys, step = std::move(step)](Key& key) {
    if (!Passes(key, keys)) {
      key.Drop();
      // Where the point is thrown away, too, a number loses as much by it.
      if (keys != Keys::FileName && QStringLiteral(",.").contains(key.character))
        field.CommaDropped();
    }
    if (!key.IsEnter()) return;
    key.Drop();
    step();
  };
}

void OnEnter(TextField& field, Keys keys, Step step, Step out) {
  OnEnter(field, keys, [&field, step = std::move(step), out = std::move(out)] {
    field.Empty() ? out() : step();
  });
}

void SayTakenNumber(TextField& field) {
  field.onKey = [&field, then = std::move(field.onKey)](Key& key) {
    if (key.Is(Key::Name::Character) && key.character == QLatin1Char(',')) field.CommaDropped();
    if (then) then(key);
  };
}

void HideOnKey(TextField& field, OrderedList& list) {
  field.onKey = [&list, then = std::move(field.onKey)](Key& key) {
    list.Hide();
    if (then) then(key);
  };
}

void OnFocusSelectAll(TextField& field, Step also) {
  field.onGotFocus = [&field, also = std::move(also)] {
    field.SelectAll();
    if (also) also();
  };
}

void DropFrom(TextField& field, OrderedList& list) {
  KeepUnseen(list);
  list.dropsFrom = &field;
}

void KeepUnseen(OrderedList& list) {
  list.Hide();
  list.takesFocus = false;
  list.inTabOrder = false;
}

void Toggle(Control& control) {
  control.SetShown(!control.Shown());
}

}  // namespace tamo
