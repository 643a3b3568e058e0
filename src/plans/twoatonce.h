#pragma once

#include <chrono>
#include <future>
#include <system_error>

#include "plans/cancelflag.h"

namespace tamo {

// Does two pieces of work at once, as two engines can: `first(cancel)` on this thread, `second`
// with a flag of its own on another one, that is cancelled with the first. One after the other
// where there is no thread to be had.
template <typename First, typename Second>
void TwoAtOnce(CancelFlag& cancel, const First& first, const Second& second) {
  CancelFlag other;
  std::future<void> done;
  try {
    done = std::async(std::launch::async, [&] { second(other); });
  } catch (const std::system_error&) {
    first(cancel);
    return second(cancel);
  }
  first(cancel);
  while (done.wait_for(std::chrono::milliseconds(4)) != std::future_status::ready) {
    if (cancel.Cancelled()) other.Cancel();
  }
  done.get();
}

}  // namespace tamo
