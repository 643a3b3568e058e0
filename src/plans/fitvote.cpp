#include "plans/fitvote.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace tamo {
namespace {

constexpr size_t kMostLong = 250;  // lines that vote
constexpr int kAngles = 900;       // tenths of a degree
constexpr size_t kPeaks = 2;       // places tried along each side
constexpr double kDegree = std::numbers::pi / 180;
constexpr double kSteep = 0.02;    // sine that a line may be off the sides
constexpr double kLikeLength = 4;  // longer than another one that votes with it

double Length(const PageLine& line) {
  return Distance(line.from, line.to);
}

// The direction in which most of the length runs, or across it: 0 to 90 degrees.
double MainAngle(const std::vector<PageLine>& lines) {
  std::vector<double> lengths(kAngles, 0);
  for (const PageLine& line : lines) {
    const double angle = std::atan2(line.to.y - line.from.y, line.to.x - line.from.x) / kDegree;
    const double side = std::fmod(angle + 360, 90);
    lengths[size_t(std::lround(side * 10)) % kAngles] += Length(line);
  }
  const auto most = std::max_element(lengths.begin(), lengths.end());
  const double angle = double(most - lengths.begin()) / 10;
  return angle > 45 ? angle - 90 : angle;
}

// Lines along the sides of the drawing, by where they stand across.
struct Side {
  double place;
  double length;
};
struct Sides {
  std::vector<Side> level;    // by their y
  std::vector<Side> upright;  // by their x
};

void KeepLongest(std::vector<Side>& sides) {
  const size_t keep = std::min(kMostLong, sides.size());
  std::partial_sort(sides.begin(), sides.begin() + std::ptrdiff_t(keep), sides.end(),
                    [](const Side& a, const Side& b) { return a.length > b.length; });
  sides.resize(keep);
}

Sides SidesOf(const std::vector<PageLine>& lines, const SheetFit& turned) {
  Sides sides;
  for (const PageLine& line : lines) {
    const PagePoint from = turned.To(line.from);
    const PagePoint to = turned.To(line.to);
    const double length = Distance(from, to);
    if (std::abs(to.y - from.y) < kSteep * length)
      sides.level.push_back({(from.y + to.y) / 2, length});
    else if (std::abs(to.x - from.x) < kSteep * length)
      sides.upright.push_back({(from.x + to.x) / 2, length});
  }
  KeepLongest(sides.level);
  KeepLongest(sides.upright);
  return sides;
}

Sides Sized(Sides sides, double size) {
  for (std::vector<Side>* list : {&sides.level, &sides.upright}) {
    for (Side& side : *list) side = {side.place * size, side.length * size};
  }
  return sides;
}

// How far the old sides have to be moved so that the most length falls together.
std::vector<double> Moves(const std::vector<Side>& old, const std::vector<Side>& now,
                          double reach) {
  const int middle = static_cast<int>(reach);
  std::vector<double> votes(size_t(middle) * 2 + 1, 0);
  for (const Side& from : old) {
    for (const Side& to : now) {
      const double away = std::round(to.place - from.place);
      if (!(std::abs(away) < middle)) continue;
      const int move = static_cast<int>(away) + middle;
      const double shorter = std::min(from.length, to.length);
      if (shorter * kLikeLength < std::max(from.length, to.length)) continue;
      votes[size_t(move)] += shorter;
      votes[size_t(move) - 1] += shorter / 2;
      votes[size_t(move) + 1] += shorter / 2;
    }
  }
  std::vector<double> moves;
  while (moves.size() < kPeaks) {
    const auto most = std::max_element(votes.begin(), votes.end());
    if (*most <= 0) break;
    moves.push_back(double(most - votes.begin()) - middle);
    for (auto near = std::max(votes.begin(), most - 3); near < std::min(votes.end(), most + 4);
         ++near)
      *near = 0;
  }
  return moves;
}

// Sizes that the lengths of the longest lines speak for.
void AddSizesByLength(const Sides& old, const Sides& now, std::vector<double>& sizes) {
  constexpr int kSteps = 7000;  // from a 32nd to 32 times
  constexpr double kDoublings = 5;
  constexpr size_t kLongest = 40;
  std::vector<double> votes(kSteps * 2 + 1, 0);
  const auto vote = [&](const std::vector<Side>& from, const std::vector<Side>& to) {
    for (size_t i = 0; i < std::min(kLongest, from.size()); ++i) {
      for (size_t j = 0; j < std::min(kLongest, to.size()); ++j) {
        const double step = std::log2(to[j].length / from[i].length) / kDoublings * kSteps;
        if (std::abs(step) < kSteps) votes[size_t(std::lround(step) + kSteps)] += 1;
      }
    }
  };
  vote(old.level, now.level);
  vote(old.upright, now.upright);
  for (int peak = 0; peak < 3; ++peak) {
    const auto most = std::max_element(votes.begin(), votes.end());
    if (*most < 2) return;
    sizes.push_back(std::exp2((double(most - votes.begin()) - kSteps) / kSteps * kDoublings));
    *most = 0;
  }
}

std::vector<double> Sizes(const SheetLinework& old, const SheetLinework& now, const Sides& oldSides,
                          const Sides& nowSides) {
  std::vector<double> sizes = {1, now.size.width / old.size.width,
                               now.size.height / old.size.height, 0.5, 2};
  AddSizesByLength(oldSides, nowSides, sizes);
  // On paper of any size a drawing fills about as much of it.
  constexpr double kMostOdd = 6;
  const double paper =
      std::hypot(now.size.width, now.size.height) / std::hypot(old.size.width, old.size.height);
  std::vector<double> apart;
  for (const double size : sizes) {
    const bool there = std::any_of(apart.begin(), apart.end(),
                                   [&](double other) { return std::abs(size / other - 1) < 1e-4; });
    if (!there && size > paper / kMostOdd && size < paper * kMostOdd) apart.push_back(size);
  }
  return apart;
}

}  // namespace

std::vector<SheetFit> LikelyFits(const SheetLinework& old, const SheetLinework& now) {
  const double oldAngle = MainAngle(old.lines);
  const double nowAngle = MainAngle(now.lines);
  const SheetFit upright = Fit(1, -nowAngle, 0, 0);
  const Sides nowSides = SidesOf(now.lines, upright);
  constexpr double kMostReach = 100000;  // points; a sheet is never so large
  const double reach = std::min(
      kMostReach, 2 * std::max({now.size.width, now.size.height, old.size.width, old.size.height}));
  std::vector<SheetFit> fits;
  for (int quarter = 0; quarter < 4; ++quarter) {
    const double turn = 90 * quarter - oldAngle;
    const Sides oldSides = SidesOf(old.lines, Fit(1, turn, 0, 0));
    std::vector<double> sizes = Sizes(old, now, oldSides, nowSides);
    if (quarter % 2 == 1) {
      sizes.push_back(now.size.width / old.size.height);
      sizes.push_back(now.size.height / old.size.width);
    }
    for (const double size : sizes) {
      const Sides sized = Sized(oldSides, size);
      for (const double dx : Moves(sized.upright, nowSides.upright, reach)) {
        for (const double dy : Moves(sized.level, nowSides.level, reach)) {
          const SheetFit moved = Joined(Fit(size, turn, 0, 0), {1, 0, dx, dy});
          fits.push_back(Joined(moved, Fit(1, nowAngle, 0, 0)));
        }
      }
    }
  }
  return fits;
}

}  // namespace tamo
