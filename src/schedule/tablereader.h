#pragma once

#include <vector>

#include "schedule/scheduletable.h"
#include "schedule/sheetdrawing.h"

namespace tamo {

// Reads one table: `drawing` is what lies inside of `frame`. Heads that begin anew beside each
// other give a table each. Empty when there are no heads in it.
std::vector<ScheduleTable> ReadTables(SheetDrawing drawing, const PageBox& frame);

// Reads the part of a table that goes on without its heads: as many columns as `before` has, with
// its heads. Empty when there are more or fewer.
std::vector<ScheduleTable> ReadFurtherPart(SheetDrawing drawing, const PageBox& frame,
                                           const ScheduleTable& before);

}  // namespace tamo
