#include "plans/likematch.h"

#include <algorithm>
#include <cmath>
#include <numeric>

#include "plans/likehull.h"
#include "plans/outline.h"

namespace tamo {
namespace {

constexpr double kMostMissing = 0.6;  // of its length that may be drawn in other pieces
constexpr double kFine = 0.15;        // of its size: lines so short may be parts of a curve
constexpr double kFineOnSheet = 0.2;
constexpr double kStraight = 0.1;  // sine of the angle that a straight line may be off
constexpr double kBent = 0.45;     // and a part of a curve

PageLine Mapped(const PageLine& line, const LikePose& pose) {
  return {pose.Of(line.from), pose.Of(line.to)};
}

double SineBetween(const PageLine& a, const PageLine& b) {
  const double ax = a.to.x - a.from.x;
  const double ay = a.to.y - a.from.y;
  const double bx = b.to.x - b.from.x;
  const double by = b.to.y - b.from.y;
  const double size = std::hypot(ax, ay) * std::hypot(bx, by);
  return size == 0 ? 0 : std::abs(ax * by - ay * bx) / size;
}

PagePoint Between(const PageLine& line, double part) {
  return {line.from.x + part * (line.to.x - line.from.x),
          line.from.y + part * (line.to.y - line.from.y)};
}

}  // namespace

LikeMatcher::LikeMatcher(const LikeSheet& sheet, const LikeShape& shape)
    : sheet_(sheet), shape_(shape), order_(shape.strokes.size()), ink_(shape.ink) {
  std::vector<size_t> alike;
  for (const ShapeStroke& own : shape_.strokes)
    alike.push_back(sheet_.strokes.OfLength(own.stroke.length, shape_.tolerance).size());
  std::iota(order_.begin(), order_.end(), size_t(0));
  std::stable_sort(order_.begin(), order_.end(),
                   [&](size_t a, size_t b) { return alike[a] < alike[b]; });
  for (const PagePoint corner : shape_.hull)
    radius_ = std::max(radius_, Distance(shape_.middle, corner));
  // What lies at the symbol itself, beside its own lines, may lie at its likes, too.
  Like self;
  self.middle = shape_.middle;
  self.outline = shape_.hull;
  LookAround(self);
  ringed_ = self.ringed;
  for (const uint32_t number : self.others) {
    const LikeStroke& stroke = sheet_.strokes.Strokes()[number];
    for (uint32_t i = stroke.first; i < stroke.first + stroke.count; ++i)
      atIt_.push_back(sheet_.lines->All()[i].line);
  }
  ink_.insert(ink_.end(), atIt_.begin(), atIt_.end());
}

// The stroke of the sheet that is this one of the symbol: the nearest that fits.
bool LikeMatcher::FindStroke(const LikeStroke& own, const LikePose& pose, double off,
                             Fit& fit) const {
  const PagePoint from = pose.Of(own.from);
  const PagePoint to = pose.Of(own.to);
  const PagePoint middle = pose.Of(own.middle);
  double nearest = 1e9;
  uint32_t found = 0;
  bool turned = false;
  sheet_.strokes.Near({(from.x + to.x) / 2, (from.y + to.y) / 2}, off, [&](uint32_t number) {
    const LikeStroke& stroke = sheet_.strokes.Strokes()[number];
    if (stroke.curved != own.curved || std::abs(stroke.length - own.length) > 2 * off) return true;
    const double straight = std::max(Distance(stroke.from, from), Distance(stroke.to, to));
    const double back = std::max(Distance(stroke.from, to), Distance(stroke.to, from));
    const double away = std::max(std::min(straight, back), Distance(stroke.middle, middle));
    if (away >= nearest) return true;
    nearest = away;
    found = number;
    turned = back < straight;
    return true;
  });
  if (nearest > off) return false;
  const LikeStroke& stroke = sheet_.strokes.Strokes()[found];
  fit.pairs.push_back({own.from, turned ? stroke.to : stroke.from});
  fit.pairs.push_back({own.to, turned ? stroke.from : stroke.to});
  fit.pairs.push_back({own.middle, stroke.middle});
  fit.strokes.push_back(found);
  return true;
}

bool LikeMatcher::Agree(const LikePose& pose, double off, Fit& fit) const {
  constexpr size_t kEnough = 6;  // strokes that tell, of which a third is there
  fit = {};
  double missing = 0;
  size_t tried = 0;
  for (const size_t i : order_) {
    const LikeStroke& own = shape_.strokes[i].stroke;
    if (++tried > kEnough && 3 * fit.strokes.size() < tried) return false;
    if (FindStroke(own, pose, off, fit)) continue;
    fit.missing.push_back(i);
    missing += own.length;
    if (missing > kMostMissing * shape_.length) return false;
  }
  return !fit.strokes.empty();
}

bool LikeMatcher::Match(LikePose pose, double rough, Like& like) const {
  Fit fit;
  const bool mirrored = pose.Mirrored();
  if (!Agree(pose, std::max(rough, shape_.tolerance), fit)) return false;
  pose = FitPose(fit.pairs, mirrored);
  if (!Agree(pose, shape_.tolerance, fit)) return false;
  pose = FitPose(fit.pairs, mirrored);
  for (const size_t i : fit.missing) {
    if (!Covered(shape_.strokes[i], pose)) return false;
  }
  like = {};
  like.pose = pose;
  like.middle = pose.Of(shape_.middle);
  for (const PagePoint corner : shape_.hull) like.outline.push_back(pose.Of(corner));
  like.strokes = std::move(fit.strokes);
  like.letters = LettersIn(*sheet_.letters, like.outline);
  LookAround(like);
  like.ringed = like.ringed && !ringed_;
  return true;
}

// --- A line of the symbol that the drawing has in other pieces

bool LikeMatcher::Covered(const ShapeStroke& own, const LikePose& pose) const {
  for (uint32_t i = own.stroke.first; i < own.stroke.first + own.stroke.count; ++i) {
    if (!LineCovered(sheet_.lines->All()[i].line, own, pose)) return false;
  }
  return true;
}

bool LikeMatcher::LineCovered(const PageLine& line, const ShapeStroke& own,
                              const LikePose& pose) const {
  const PageLine mapped = Mapped(line, pose);
  const PageLine reach = Mapped(own.reach, pose);
  const double step = 2 * shape_.tolerance;
  const int steps = std::clamp(int(Distance(mapped.from, mapped.to) / step) + 1, 2, 1000);
  for (int i = 0; i <= steps; ++i) {
    if (!Stands(Between(mapped, double(i) / steps), mapped, own, reach)) return false;
  }
  return true;
}

bool LikeMatcher::Stands(PagePoint at, const PageLine& along, const ShapeStroke& own,
                         const PageLine& reach) const {
  const double off = shape_.tolerance;
  const bool fine = own.stroke.curved || own.stroke.length <= kFine * shape_.size;
  std::vector<uint32_t> numbers;
  sheet_.lines->LinesAround(at, off, numbers);
  return std::any_of(numbers.begin(), numbers.end(), [&](uint32_t number) {
    const SnapLine& other = sheet_.lines->All()[number];
    if (DistanceToLine(at, other.line.from, other.line.to) > off) return false;
    const double sine = SineBetween(along, other.line);
    const double length = Distance(other.line.from, other.line.to);
    if (fine && sine <= kBent && (other.curve != 0 || length <= kFineOnSheet * shape_.size))
      return true;
    return !own.stroke.curved && other.curve == 0 && sine <= kStraight &&
           DistanceToLine(other.line.from, reach.from, reach.to) <= 1.5 * off &&
           DistanceToLine(other.line.to, reach.from, reach.to) <= 1.5 * off;
  });
}

}  // namespace tamo
