#include <algorithm>
#include <cmath>

#include "plans/likehull.h"
#include "plans/likematch.h"
#include "plans/outline.h"

// What else lies in and at a symbol that was found: long lines that pass are no matter, short ones
// may well make it another symbol.

namespace tamo {
namespace {

constexpr double kPassing = 2;     // of its size: a line so long only passes
constexpr double kAttached = 0.6;  // a line so short that begins at it may belong to it
constexpr double kRing = 0.6;      // how far around it another outline is looked for
constexpr int kRays = 16;
constexpr int kRing16 = 14;  // of the rays that meet it

bool Crosses(PagePoint from, PagePoint to, const PageLine& line) {
  const auto side = [](PagePoint a, PagePoint b, PagePoint c) {
    return (b.x - a.x) * (c.y - a.y) - (b.y - a.y) * (c.x - a.x);
  };
  return side(from, to, line.from) * side(from, to, line.to) < 0 &&
         side(line.from, line.to, from) * side(line.from, line.to, to) < 0;
}

}  // namespace

bool LikeMatcher::OnInk(PagePoint at, const LikePose& pose, double off) const {
  const PagePoint own = pose.Back(at);
  return std::any_of(ink_.begin(), ink_.end(), [&](const PageLine& line) {
    return DistanceToLine(own, line.from, line.to) <= off;
  });
}

// A part of the line lies in the symbol and is none of its own lines.
bool LikeMatcher::Inside(const PageLine& line, const Like& like) const {
  PageLine part = line;
  const double off = shape_.tolerance;
  if (!CutToHull(part, like.outline, 1.5 * off)) return false;
  const double length = Distance(part.from, part.to);
  if (length <= 2 * off) return false;
  const int steps = std::clamp(int(length / (2 * off)), 2, 64);
  int strange = 0;
  for (int i = 0; i <= steps; ++i) {
    const double p = double(i) / steps;
    const PagePoint at = {part.from.x + p * (part.to.x - part.from.x),
                          part.from.y + p * (part.to.y - part.from.y)};
    if (!OnInk(at, like.pose, 1.5 * off)) ++strange;
  }
  return strange * length / steps > 3 * off;
}

// A short line outside of the symbol that begins at it and is none of its own.
bool LikeMatcher::Attached(const LikeStroke& stroke, const Like& like) const {
  if (stroke.length > kAttached * shape_.size) return false;
  const double off = shape_.tolerance;
  const bool from = OnInk(stroke.from, like.pose, off);
  const bool to = OnInk(stroke.to, like.pose, off);
  return (from || to) && !OnInk(stroke.middle, like.pose, 1.5 * off);
}

// Another outline goes around the symbol: nearly every way out meets a line that is not long.
bool LikeMatcher::Ringed(const Like& like, const std::vector<uint32_t>& lines) const {
  int met = 0;
  for (int ray = 0; ray < kRays; ++ray) {
    const double angle = 6.283185307 * ray / kRays;
    PageLine out = {like.middle,
                    {like.middle.x + 2 * radius_ * std::cos(angle),
                     like.middle.y + 2 * radius_ * std::sin(angle)}};
    PageLine inner = out;
    if (!CutToHull(inner, like.outline, -2 * shape_.tolerance)) continue;
    const double part = (Distance(out.from, inner.to) + kRing * shape_.size) / (2 * radius_);
    const PagePoint end = {out.from.x + part * (out.to.x - out.from.x),
                           out.from.y + part * (out.to.y - out.from.y)};
    met += std::any_of(lines.begin(), lines.end(), [&](uint32_t number) {
      const uint32_t stroke = sheet_.strokes.StrokeOfLine(number);
      return sheet_.strokes.Strokes()[stroke].length <= kPassing * shape_.size &&
             Crosses(inner.to, end, sheet_.lines->All()[number].line);
    });
  }
  return met >= kRing16;
}

void LikeMatcher::LookAround(Like& like) const {
  std::vector<uint32_t> lines;
  sheet_.lines->LinesAround(like.middle, radius_ + kRing * shape_.size, lines);
  std::sort(lines.begin(), lines.end());
  lines.erase(std::unique(lines.begin(), lines.end()), lines.end());
  for (const uint32_t number : lines) {
    const uint32_t of = sheet_.strokes.StrokeOfLine(number);
    if (!like.others.empty() && like.others.back() == of) continue;
    const LikeStroke& stroke = sheet_.strokes.Strokes()[of];
    const bool passes =
        stroke.length >= kPassing * shape_.size &&
        !(InHull(stroke.from, like.outline, 0) && InHull(stroke.to, like.outline, 0));
    if (passes) continue;
    if (Inside(sheet_.lines->All()[number].line, like) || Attached(stroke, like))
      like.others.push_back(of);
  }
  like.ringed = Ringed(like, lines);
  like.lacking = std::any_of(atIt_.begin(), atIt_.end(), [&](const PageLine& line) {
    const PagePoint at =
        like.pose.Of({(line.from.x + line.to.x) / 2, (line.from.y + line.to.y) / 2});
    return std::none_of(lines.begin(), lines.end(), [&](uint32_t number) {
      const PageLine& other = sheet_.lines->All()[number].line;
      return DistanceToLine(at, other.from, other.to) <= 2 * shape_.tolerance;
    });
  });
}

}  // namespace tamo
