#pragma once

#include <QString>
#include <QStringList>
#include <vector>

#include "player/step.h"

namespace tamo::player {

// The steps of a scenario. A line that can't be understood becomes a step with an error, so that
// everything before it is still played.
std::vector<Step> ParseScenario(const QStringList& lines);

// The key named Enter, Ctrl+Enter, Ctrl+Z, Ctrl+Y, Backspace, Delete, Escape, Tab, Shift+Tab,
// Space, Up, Down, Left, Right; false when there is none of that name.
bool KeyFromName(const QString& name, Key& key);

}  // namespace tamo::player
