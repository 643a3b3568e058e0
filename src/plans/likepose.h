#pragma once

#include <span>

#include "plans/mark.h"

namespace tamo {

// How a symbol lies at another place of a sheet: turned by any angle, mirrored or not, never
// larger or smaller.
struct LikePose {
  double a = 1, b = 0, c = 0, d = 1, e = 0, f = 0;

  PagePoint Of(PagePoint at) const { return {a * at.x + c * at.y + e, b * at.x + d * at.y + f}; }
  PagePoint Back(PagePoint at) const;
  bool Mirrored() const { return a * d - b * c < 0; }
};

struct PointPair {
  PagePoint from;
  PagePoint to;
};

// The pose that takes the first places as near as can be to the second ones (least squares). Two
// places at least, not all the same.
LikePose FitPose(std::span<const PointPair> pairs, bool mirrored);

}  // namespace tamo
