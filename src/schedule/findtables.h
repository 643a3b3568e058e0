#pragma once

#include <vector>

#include "schedule/scheduletable.h"
#include "schedule/sheetdrawing.h"

namespace tamo {

// The tables of a drawing whose texts read to the right, in reading order. Places are the
// drawing's.
std::vector<ScheduleTable> TablesIn(const SheetDrawing& drawing);

}  // namespace tamo
