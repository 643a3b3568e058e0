#pragma once

#include <algorithm>
#include <cstdio>
#include <vector>

namespace tamo::bench {

// `part` from 0 to 1: 0.5 is the median.
inline double Part(std::vector<double> times, double part) {
  std::sort(times.begin(), times.end());
  return times[static_cast<size_t>(static_cast<double>(times.size() - 1) * part)];
}

inline void Tell(const char* what, const std::vector<double>& times) {
  std::printf("%-12s median %6.2f ms, 99 of 100 within %6.2f ms\n", what, Part(times, .5),
              Part(times, .99));
}

}  // namespace tamo::bench
