#pragma once

#include <vector>

#include "schedule/scheduletable.h"

namespace tamo {

// Whether one reading of a place holds all that another one holds and more: the same columns with
// more rows, none of them poor in text, or the same rows with more text.
bool HoldsMore(const std::vector<ScheduleTable>& larger, const std::vector<ScheduleTable>& smaller);

}  // namespace tamo
