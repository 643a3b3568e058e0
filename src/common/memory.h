#pragma once

namespace tamo {

// Keeps up to 64 MB of given-back memory for what comes next, instead of handing it to the system
// and asking for it anew: with the automatic refresh a report is made again at every entry, and
// fresh memory costs more time than the report's own lines. All threads share two such stores: one
// for each of them would keep as much for itself. Called once, at the start.
void KeepMemory();

}  // namespace tamo
