#pragma once

#include <ctime>

namespace tamo::bench {

// What this thread has worked so far, in milliseconds: without what other programs took of the
// machine meanwhile, and without waiting for the device.
inline double WorkOfThread() {
  timespec time{};
  clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
  return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) / 1e6;
}

}  // namespace tamo::bench
