#pragma once

#include <array>
#include <optional>
#include <vector>

#include "plans/likematch.h"

namespace tamo {

// A line of the symbol that lines of the sheet are held against: it alone tells how the symbol
// would lie there, a second one far from it tells it exactly.
struct LikeAnchor {
  LikeStroke own;
  std::optional<LikeStroke> far;  // when the first is too short for an exact pose
  double rough = 0;               // points that the pose of the first alone may be off
};

// One or two lines of the symbol whose likes are few on the sheet.
std::vector<LikeAnchor> AnchorsOf(const LikeSheet& sheet, const LikeShape& shape);

// The poses in which the anchor would be the stroke of the sheet; `visit` gets each with the points
// that it may be off.
template <typename Visit>
void VisitPoses(const LikeSheet& sheet, const LikeShape& shape, const LikeAnchor& anchor,
                const LikeStroke& stroke, Visit visit);

// Two places of a stroke that tell how it lies.
using StrokeEnds = std::array<PagePoint, 2>;
StrokeEnds EndsOf(const LikeStroke& stroke, bool turned);

template <typename Visit>
void VisitPoses(const LikeSheet& sheet, const LikeShape& shape, const LikeAnchor& anchor,
                const LikeStroke& stroke, Visit visit) {
  const StrokeEnds own = EndsOf(anchor.own, false);
  for (const bool turned : {false, true}) {
    const StrokeEnds ends = EndsOf(stroke, turned);
    for (const bool mirrored : {false, true}) {
      const std::array<PointPair, 2> pairs = {{{own[0], ends[0]}, {own[1], ends[1]}}};
      const LikePose pose = FitPose(pairs, mirrored);
      if (!anchor.far.has_value()) {
        visit(pose, anchor.rough);
        continue;
      }
      const LikeStroke& far = *anchor.far;
      const PagePoint from = pose.Of(far.from);
      const PagePoint to = pose.Of(far.to);
      sheet.strokes.Near(
          {(from.x + to.x) / 2, (from.y + to.y) / 2}, anchor.rough, [&](uint32_t number) {
            const LikeStroke& other = sheet.strokes.Strokes()[number];
            if (other.curved != far.curved || std::abs(other.length - far.length) > shape.tolerance)
              return true;
            const bool back = Distance(other.from, to) < Distance(other.from, from);
            const std::array<PointPair, 4> both = {pairs[0],
                                                   pairs[1],
                                                   {far.from, back ? other.to : other.from},
                                                   {far.to, back ? other.from : other.to}};
            visit(FitPose(both, mirrored), 2 * shape.tolerance);
            return true;
          });
    }
  }
}

}  // namespace tamo
