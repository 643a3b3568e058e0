#pragma once

#include <vector>

#include "schedule/scheduletable.h"
#include "schedule/sheetdrawing.h"

namespace tamo {

// A cell that goes on over several rows (the rule between them is missing in its column) stands for
// each of them, and is marked. `across`: the rules that end rows.
void ShareMergedCells(ScheduleTable& table, const SheetDrawing& drawing,
                      const std::vector<double>& across);

}  // namespace tamo
