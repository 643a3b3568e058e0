#pragma once

#include <span>

#include "common/desk.h"

namespace tamo {

// The working windows by number, as the keys go to them.
struct WindowWay {
  const char* form;
  const char* name;    // for a person
  const char* onMain;  // the entry of the main form's menus that brings it up
  const char* onOst;   // the same of the plan window, which carries the menus in mode 2
};
std::span<const WindowWay> WindowWays();

// Brings window `number` (from 1) to the front. One that is not open is opened by its menu entry,
// with all its guards, from whichever shell offers it.
void GoToWindow(Desk& desk, int number);

}  // namespace tamo
