#pragma once

#include <vector>

#include "schedule/sheetdrawing.h"

namespace tamo {

// Where the ruling of a sheet may be a table's: boxes of rules of the same length that lie over
// each other, the smallest first; then those of rules beside each other.
std::vector<PageBox> RuledFrames(const SheetDrawing& drawing);

// Where tables without ruling may stand: around lines of words that are usual heads, down to where
// the rows end. Words inside of `taken` are left out.
std::vector<PageBox> UnruledFrames(const SheetDrawing& drawing, const std::vector<PageBox>& taken);

}  // namespace tamo
