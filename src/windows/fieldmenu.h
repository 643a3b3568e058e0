#pragma once

#include <QPoint>
#include <QWidget>
#include <functional>

namespace tamo {

// Cut, copy, paste, delete and select all, at `place` (global), for a field of one line or of
// several. What can't be done is shown and can't be chosen. `paste` is the field's own.
void ShowFieldMenu(QWidget& field, const QPoint& place, const std::function<void()>& paste);

}  // namespace tamo
