#include "schedule/rules.h"

#include <algorithm>
#include <cmath>

namespace tamo {
namespace {

constexpr double kStraight = 0.35;  // points a line may be off its direction
constexpr double kShortest = 2.5;   // points
constexpr double kThickest = 3.2;   // points of a filled area that counts as a line
constexpr double kBreak = 1.6;      // points between two pieces of one line
constexpr double kDashBreak = 7;    // the same of a dashed one
constexpr double kSameLine = 0.6;   // points across, of pieces of one line

struct Piece {
  Rule rule;
  double gap = kBreak;
};

bool White(const PathPiece& path) {
  const unsigned least = 0xf4;
  return path.alpha < 0.05 || ((path.colour >> 16 & 0xff) >= least &&
                               (path.colour >> 8 & 0xff) >= least && (path.colour & 0xff) >= least);
}

void TakeLine(PagePoint from, PagePoint to, double gap, std::vector<Piece>& pieces) {
  const double width = std::abs(to.x - from.x);
  const double height = std::abs(to.y - from.y);
  if (std::max(width, height) < kShortest) return;
  if (height <= kStraight) {
    pieces.push_back(
        {{true, (from.y + to.y) / 2, std::min(from.x, to.x), std::max(from.x, to.x)}, gap});
  } else if (width <= kStraight) {
    pieces.push_back(
        {{false, (from.x + to.x) / 2, std::min(from.y, to.y), std::max(from.y, to.y)}, gap});
  }
}

bool Straight(const PathPiece& path) {
  return std::none_of(path.steps.begin(), path.steps.end(),
                      [](const PathStep& step) { return step.kind == PathStep::Kind::Curve; });
}

void TakeStroke(const PathPiece& path, std::vector<Piece>& pieces) {
  if (std::max(path.box.Width(), path.box.Height()) < kShortest || !Straight(path)) return;
  const double gap = path.dashed ? kDashBreak : kBreak;
  for (const PageLine& line : Flattened(path, 1)) TakeLine(line.from, line.to, gap, pieces);
}

void TakeFill(const PathPiece& path, std::vector<Piece>& pieces) {
  if (!Straight(path)) return;
  for (const PageBox& box : RectanglesOf(path, 0.3)) {
    const double midX = (box.left + box.right) / 2;
    const double midY = (box.top + box.bottom) / 2;
    if (box.Height() <= kThickest && box.Width() > 2 * box.Height()) {
      TakeLine({box.left, midY}, {box.right, midY}, kBreak, pieces);
    } else if (box.Width() <= kThickest && box.Height() > 2 * box.Width()) {
      TakeLine({midX, box.top}, {midX, box.bottom}, kBreak, pieces);
    }
  }
}

// Pieces on one line, in order, that touch or nearly touch become one.
void JoinLine(std::vector<Piece>::iterator first, std::vector<Piece>::iterator last,
              std::vector<Rule>& rules) {
  std::sort(first, last, [](const Piece& a, const Piece& b) { return a.rule.from < b.rule.from; });
  Piece open = *first;
  for (auto at = first + 1; at != last; ++at) {
    if (at->rule.from <= open.rule.to + std::max(open.gap, at->gap)) {
      open.rule.to = std::max(open.rule.to, at->rule.to);
      open.gap = std::min(open.gap, at->gap);
    } else {
      rules.push_back(open.rule);
      open = *at;
    }
  }
  rules.push_back(open.rule);
}

std::vector<Rule> Joined(std::vector<Piece> pieces) {
  std::sort(pieces.begin(), pieces.end(), [](const Piece& a, const Piece& b) {
    if (a.rule.along != b.rule.along) return a.rule.along;
    return a.rule.at < b.rule.at;
  });
  std::vector<Rule> rules;
  for (auto first = pieces.begin(); first != pieces.end();) {
    auto last = first + 1;
    while (last != pieces.end() && last->rule.along == first->rule.along &&
           last->rule.at - first->rule.at <= kSameLine) {
      ++last;
    }
    JoinLine(first, last, rules);
    first = last;
  }
  return rules;
}

// --- Triangles

constexpr double kSmallestDelta = 5;  // points
constexpr double kLargestDelta = 48;

bool Near(PagePoint a, PagePoint b) {
  return Distance(a, b) <= 0.6;
}

// The three corners of an outline of three lines.
bool IsTriangle(const std::vector<PageLine>& lines, size_t at) {
  if (at + 2 >= lines.size()) return false;
  const PageLine& a = lines[at];
  const PageLine& b = lines[at + 1];
  const PageLine& c = lines[at + 2];
  return Near(a.to, b.from) && Near(b.to, c.from) && Near(c.to, a.from);
}

void TakeTriangles(const std::vector<PageLine>& lines, std::vector<PageBox>& deltas) {
  for (size_t i = 0; i + 2 < lines.size(); ++i) {
    if (!IsTriangle(lines, i)) continue;
    PageBox box = NoBox();
    for (size_t k = i; k < i + 3; ++k) box.Take(lines[k].from);
    const double least = std::min(box.Width(), box.Height());
    const double most = std::max(box.Width(), box.Height());
    if (least >= kSmallestDelta && most <= kLargestDelta) deltas.push_back(box);
  }
}

}  // namespace

std::vector<Rule> RulesOf(const std::vector<PathPiece>& paths) {
  std::vector<Piece> pieces;
  for (const PathPiece& path : paths) {
    if (White(path)) continue;
    if (path.kind == PathPiece::Kind::Stroke) {
      TakeStroke(path, pieces);
    } else {
      TakeFill(path, pieces);
    }
  }
  return Joined(std::move(pieces));
}

std::vector<PageBox> DeltasOf(const std::vector<PathPiece>& paths) {
  std::vector<PageBox> deltas;
  std::vector<PageLine> single;  // lines drawn one by one, in the order of drawing
  for (const PathPiece& path : paths) {
    const bool small = path.box.Width() <= kLargestDelta + 4 &&
                       path.box.Height() <= kLargestDelta + 4 && path.steps.size() <= 8;
    if (!small || !Straight(path)) {
      single.clear();
      continue;
    }
    const std::vector<PageLine> lines = Flattened(path, 1);
    TakeTriangles(lines, deltas);
    if (lines.size() == 1) single.push_back(lines.front());
    if (single.size() >= 3) TakeTriangles({single.end() - 3, single.end()}, deltas);
  }
  return deltas;
}

}  // namespace tamo
