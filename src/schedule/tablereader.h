#pragma once

#include <vector>

#include "schedule/scheduletable.h"
#include "schedule/sheetdrawing.h"

namespace tamo {

// Reads one table: `drawing` is what lies inside of `frame`. Heads that begin anew beside each
// other give a table each. Empty when there are no heads in it.
std::vector<ScheduleTable> ReadTables(SheetDrawing drawing, const PageBox& frame);

}  // namespace tamo
