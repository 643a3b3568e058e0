#pragma once

#include <vector>

#include "schedule/headroles.h"
#include "schedule/tablecolumns.h"

namespace tamo {

// The texts over each column, from the top down: merged heads stand over all that they span.
std::vector<HeadTexts> HeadsOverColumns(const SheetDrawing& drawing, const HeadArea& heads,
                                        const ColumnBorders& columns);

}  // namespace tamo
