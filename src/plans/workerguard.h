#pragma once

#include "plans/wireplan.h"

namespace tamo {

// What a worker says of how it is guarded, kept for WorkerEngine::MissingGuards.
void NoteGuard(const WorkerGuard& guard);

}  // namespace tamo
