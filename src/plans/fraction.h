#pragma once

#include <QString>

namespace tamo {

// The number a scale's text stands for: a whole number ("3"), a fraction ("1/16"), or a whole
// number, a blank and a fraction ("1 1/2"). Blanks around it do not count. A decimal number ("2.5")
// is taken as it stands. Any other text, and a fraction over 0, gives 0 and sets `ok` to false;
// never an infinity.
double FractionValue(const QString& text, bool* ok = nullptr);

}  // namespace tamo
