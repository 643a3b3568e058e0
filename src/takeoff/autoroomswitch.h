#pragma once

#include "common/control.h"

namespace tamo {

// The menu entry that makes a takeoff form go on to the next name by itself (NextName). Its caption
// says ON or OFF; what it acts on is the switch behind it.
class AutoRoomSwitch {
 public:
  explicit AutoRoomSwitch(MenuEntry& entry) : entry_(entry) {
    entry_.onClick = [this] { Switch(); };
  }
  AutoRoomSwitch(const AutoRoomSwitch&) = delete;
  AutoRoomSwitch& operator=(const AutoRoomSwitch&) = delete;

  bool On() const { return on_; }
  // The caption only: a form left with it on shows OFF and still acts as on (held by a test).
  void ShowOff() { entry_.SetCaption(QStringLiteral("AutoRoom is OFF")); }

 private:
  void Switch() {
    on_ = entry_.Caption() != QLatin1String("AutoRoom is ON");
    entry_.SetCaption(on_ ? QStringLiteral("AutoRoom is ON") : QStringLiteral("AutoRoom is OFF"));
  }

  MenuEntry& entry_;
  bool on_ = false;
};

}  // namespace tamo
