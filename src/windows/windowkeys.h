#pragma once

#include <QString>
#include <functional>
#include <vector>

#include "windows/formwindow.h"

namespace tamo {

class Program;

// A key and what it does, in words.
struct KeyWords {
  QString keys;
  QString what;
};

// The keys that every window has: help, print, plan, the other windows, and the page of all keys.
// `askForPlan` gives the path of a plan that the estimator picks, "" for none; it outlives the
// window, and may be set later: until then the system's own dialog asks.
void GiveWindowKeys(FormWindow& window, Program& program,
                    const std::function<QString(QWidget*)>& askForPlan);
// The system's own dialog for a PDF file.
QString AskForPlan(QWidget* over, const QString& folder);

// All keys of the window: of its menus, its fields, and those that every window has.
std::vector<KeyWords> KeysOf(const FormWindow& window);

}  // namespace tamo
