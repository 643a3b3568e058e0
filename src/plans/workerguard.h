#pragma once

#include "plans/wireplan.h"

namespace tamo {

// What a worker says of how it is guarded, kept for WorkerEngine::MissingGuards.
void NoteGuard(WireReader& wire);

}  // namespace tamo
