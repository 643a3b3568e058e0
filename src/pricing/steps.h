#pragma once

#include <QString>
#include <functional>

#include "common/desk.h"

namespace tamo {

// Small steps that the chains of pricing share. Names of systems and materials are names of files.

// Stops the event with a message when `name` can't be a file's name.
void RequireFileName(const QString& name);

// The same for a field's own Enter: the message is shown; true when the name can't be used.
bool TellIfUnusable(Desk& desk, const QString& name);

// Moves the focus where a command says. A field that is left may lead elsewhere (an empty Material
// to the system's name, Price to UPO); that holds for whoever walks away from it, not for a
// command.
void FocusByCommand(Desk& desk, Control& control);

// A click in a field opens and closes its drop list; over a field that the focus could not reach
// the list does not open.
void ToggleDropList(OrderedList& list, const TextField& field);

// `list` drops from `field`; a row that is picked is handed to `picked` with the list put away.
void OnPick(TextField& field, OrderedList& list, std::function<void(const QString&)> picked);

}  // namespace tamo
