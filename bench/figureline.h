#pragma once

#include <cstdio>
#include <string>

namespace tamo::bench {

// A line of the page of figures: what takes how many milliseconds (or what `unit` says) beside its
// peer, and the ratio of both that is the limit; 0 for none. scripts/benchmark.sh takes it over.
inline void TellFigure(const std::string& what, double takes, const std::string& peer,
                       double peerTakes, double limit = 0, const std::string& unit = "ms") {
  std::printf("figure\t%s\t%.6g\t%s\t%.6g\t%g\t%s\n", what.c_str(), takes, peer.c_str(), peerTakes,
              limit, unit.c_str());
  std::fflush(stdout);
}

}  // namespace tamo::bench
