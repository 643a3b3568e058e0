#pragma once

#include <QString>

namespace tamo {

// The money text of a bottom line price: whole cents below it (1.999 gives 1.99), 0 as 0.00, no
// zero before the point (.25), but 0.05 for cents of one digit.
QString BottomLineMoney(const QString& text);

}  // namespace tamo
