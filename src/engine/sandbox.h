#pragma once

#include "plans/wireplan.h"

namespace tamo {

// What keeps a worker from doing harm whatever a plan makes of it. First of all: nothing open but
// what it was given, limits of memory and time, no files and no network by their names.
void ShutIn(WorkerGuard& guard);
// Whether it is built with sanitizers: they make calls of their own, and take much memory.
bool HasSanitizer();
// When all threads are there: from then on none of them can do more than compute, read what is
// open, and talk to the program.
void FilterCalls(WorkerGuard& guard);

}  // namespace tamo
