#pragma once

#include <cstdint>

#include "plans/planengine.h"

namespace tamo {

// Opens and paints a small sheet of this program's own into the first two slots of the tiles, and
// takes and gives back some memory: code, fonts and memory that every plan needs are there then,
// and the first page of the first plan is sooner.
void WarmUp(PlanEngine& engine, uint32_t* tiles);

}  // namespace tamo
