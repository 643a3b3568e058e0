#pragma once

#include <QChar>

namespace tamo {

// One key press. A handler may Drop it: then nothing is typed.
struct Key {
  enum class Name {
    Character,
    Enter,
    LineFeed,
    Backspace,
    Delete,
    Escape,
    Tab,
    BackTab,
    Space,
    Up,
    Down,
    Left,
    Right,
    TakeBack,   // Ctrl+Z
    BringBack,  // Ctrl+Y
    End         // moves the caret only; no handler of a form sees it
  };

  Name name = Name::Character;
  QChar character;  // for Character and Space
  bool dropped = false;

  bool IsEnter() const { return name == Name::Enter; }
  bool Is(Name other) const { return name == other; }
  void Drop() { dropped = true; }

  static Key Typed(QChar c) {
    return {c == QLatin1Char(' ') ? Name::Space : Name::Character, c, false};
  }
  static Key Named(Name n) {
    return {n, n == Name::Space ? QChar(QLatin1Char(' ')) : QChar(), false};
  }
};

}  // namespace tamo
