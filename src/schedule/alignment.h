#pragma once

#include <vector>

#include "schedule/textline.h"

namespace tamo {

struct Span {
  double from = 0;
  double to = 0;
  double base = 0;      // of a head: its base line
  bool single = false;  // of a head: it names no more than one column
};

// Divides a stretch of a table into columns by where its rows leave a gap in common and where its
// heads stand: the borders between `from` and `to`, those not included.
std::vector<double> AlignedBorders(double from, double to, const std::vector<Span>& texts,
                                   const std::vector<Span>& heads, double size);

}  // namespace tamo
