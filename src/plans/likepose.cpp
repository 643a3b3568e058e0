#include "plans/likepose.h"

#include <cmath>

namespace tamo {

PagePoint LikePose::Back(PagePoint at) const {
  const double x = at.x - e;
  const double y = at.y - f;
  return {a * x + b * y, c * x + d * y};
}

LikePose FitPose(std::span<const PointPair> pairs, bool mirrored) {
  PagePoint from;
  PagePoint to;
  const double part = 1.0 / double(pairs.size());
  for (const PointPair& pair : pairs) {
    from = {from.x + pair.from.x * part, from.y + pair.from.y * part};
    to = {to.x + pair.to.x * part, to.y + pair.to.y * part};
  }
  // Mirrored means: across the level line first, then turned.
  const double flip = mirrored ? -1 : 1;
  double along = 0;
  double across = 0;
  for (const PointPair& pair : pairs) {
    const double x = pair.from.x - from.x;
    const double y = (pair.from.y - from.y) * flip;
    const double u = pair.to.x - to.x;
    const double v = pair.to.y - to.y;
    along += x * u + y * v;
    across += x * v - y * u;
  }
  const double size = std::hypot(along, across);
  const double cosine = size > 0 ? along / size : 1;
  const double sine = size > 0 ? across / size : 0;
  LikePose pose{cosine, sine, -sine * flip, cosine * flip, 0, 0};
  const PagePoint middle = pose.Of(from);
  pose.e = to.x - middle.x;
  pose.f = to.y - middle.y;
  return pose;
}

}  // namespace tamo
