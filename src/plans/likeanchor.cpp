#include "plans/likeanchor.h"

#include <algorithm>
#include <cmath>

namespace tamo {
namespace {

constexpr double kExact = 3;  // tolerances that the pose of one line may be off
constexpr size_t kFewAlike = 20000;

double Chord(const LikeStroke& stroke) {
  const StrokeEnds ends = EndsOf(stroke, false);
  return Distance(ends[0], ends[1]);
}

size_t Alike(const LikeSheet& sheet, const LikeShape& shape, const LikeStroke& stroke) {
  return sheet.strokes.OfLength(stroke.length, shape.tolerance).size();
}

// A line of the symbol far from another, of those that are few on the sheet.
std::optional<LikeStroke> FarOne(const LikeSheet& sheet, const LikeShape& shape,
                                 const LikeStroke& from) {
  std::optional<LikeStroke> found;
  double least = 1e18;
  for (const ShapeStroke& own : shape.strokes) {
    const double distance = Distance(own.stroke.middle, from.middle);
    if (distance <= 0.3 * shape.size) continue;
    const double cost = double(Alike(sheet, shape, own.stroke)) / distance;
    if (cost >= least) continue;
    least = cost;
    found = own.stroke;
  }
  return found;
}

LikeAnchor AnchorOf(const LikeSheet& sheet, const LikeShape& shape, const LikeStroke& stroke) {
  LikeAnchor anchor{stroke, std::nullopt, 0};
  const double chord = std::max(Chord(stroke), 1e-3);
  anchor.rough = std::min(shape.tolerance * (1 + shape.size / chord), shape.size / 2);
  if (anchor.rough > kExact * shape.tolerance) anchor.far = FarOne(sheet, shape, stroke);
  return anchor;
}

}  // namespace

// A curve that closes itself is known by its first place and its middle.
StrokeEnds EndsOf(const LikeStroke& stroke, bool turned) {
  if (Distance(stroke.from, stroke.to) < 0.3 * stroke.length) {
    if (turned) return {stroke.to, stroke.middle};
    return {stroke.from, stroke.middle};
  }
  if (turned) return {stroke.to, stroke.from};
  return {stroke.from, stroke.to};
}

std::vector<LikeAnchor> AnchorsOf(const LikeSheet& sheet, const LikeShape& shape) {
  struct Choice {
    double cost;
    const LikeStroke* stroke;
  };
  std::vector<Choice> choices;
  for (const ShapeStroke& own : shape.strokes) {
    const double alike = double(sheet.strokes.OfLength(own.stroke.length, shape.tolerance).size());
    const double chord = std::max(Chord(own.stroke), 1e-3);
    choices.push_back({alike * (1 + shape.size / chord), &own.stroke});
  }
  std::stable_sort(choices.begin(), choices.end(),
                   [](const Choice& a, const Choice& b) { return a.cost < b.cost; });
  std::vector<LikeAnchor> anchors;
  for (const Choice& choice : choices) {
    const bool other = anchors.empty() || std::abs(anchors[0].own.length - choice.stroke->length) >
                                              2 * shape.tolerance;
    if (!other) continue;
    // A second one is for drawings that have the first in other pieces, where it costs little.
    if (!anchors.empty() && Alike(sheet, shape, *choice.stroke) > kFewAlike) break;
    anchors.push_back(AnchorOf(sheet, shape, *choice.stroke));
    if (anchors.size() == 2) break;
  }
  return anchors;
}

}  // namespace tamo
