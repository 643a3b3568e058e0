#pragma once

#include <vector>

#include "plans/sheetalign.h"

namespace tamo {

// Ways in which an old sheet could lie over a new one, by what their long lines have in common: how
// long they are, which way they run, how far they are apart. The likeliest first within each size
// and turn; each to about two points.
std::vector<SheetFit> LikelyFits(const SheetLinework& old, const SheetLinework& now);

}  // namespace tamo
