#pragma once

#include <QString>

#include "common/control.h"
#include "common/form.h"
#include "player/played.h"
#include "player/trouble.h"

// Finds what a scenario names, and says whether a person could reach it.

namespace tamo::player {

Form& FormNamed(Played& played, const QString& name);  // throws Trouble, as all here
Control& ControlNamed(Played& played, const QString& fullName);
MenuEntry& EntryNamed(Played& played, const QString& fullName);

template <typename Kind>
Kind& ControlOfKind(Played& played, const QString& fullName, const char* kind) {
  auto* control = dynamic_cast<Kind*>(&ControlNamed(played, fullName));
  if (control == nullptr) {
    throw Trouble(Outcome::NotUnderstood,
                  QStringLiteral("%1 is no %2").arg(fullName, QLatin1String(kind)));
  }
  return *control;
}

// Fails unless the control's window is visible, it and its frames are shown, and all is enabled.
void MustReach(const Control& control);
void MustReach(const MenuEntry& entry);
void MustReach(const Form& form);
// Fails unless the list has that row.
void MustHaveRow(const OrderedList& list, int row);

// FORM and NAME of FORM.NAME.
std::pair<QString, QString> SplitName(const QString& fullName);

}  // namespace tamo::player
