#pragma once

#include <functional>

namespace tamo {

// For tests and players: asks every millisecond until `done` says so. False when it does not within
// that time; it is asked once in any case.
bool WaitUntil(int milliseconds, const std::function<bool()>& done);

}  // namespace tamo
