#include "plans/waituntil.h"

#include <chrono>
#include <thread>

namespace tamo {

bool WaitUntil(int milliseconds, const std::function<bool()>& done) {
  using Clock = std::chrono::steady_clock;
  const auto end = Clock::now() + std::chrono::milliseconds(milliseconds);
  while (!done()) {
    if (Clock::now() >= end) return false;
    std::this_thread::sleep_for(std::chrono::milliseconds(1));
  }
  return true;
}

}  // namespace tamo
