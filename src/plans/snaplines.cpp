#include "plans/snapindex.h"

namespace tamo {
namespace {

constexpr double kTolerance = 0.02;  // points that the parts of a curve may lie off it
constexpr unsigned kWhite = 0xffffff;

void AddLine(std::vector<SnapLine>& lines, PagePoint from, PagePoint to, const PageBox& clip) {
  SnapLine line;
  line.line = {from, to};
  if (Distance(from, to) > 0 && CutLine(line.line, clip) &&
      Distance(line.line.from, line.line.to) > 0)
    lines.push_back(line);
}

void AddCurve(std::vector<SnapLine>& lines, PagePoint from, const PathStep& curve,
              const PageBox& clip, uint32_t number) {
  PathPiece piece;
  piece.kind = PathPiece::Kind::Stroke;
  piece.clip = clip;
  piece.steps = {{PathStep::Kind::Move, from, {}, {}}, curve};
  const auto same = [](PagePoint a, PagePoint b) { return a.x == b.x && a.y == b.y; };
  PagePoint before{1e9, 1e9};
  const size_t first = lines.size();
  for (const PageLine& part : Flattened(piece, kTolerance)) {
    const bool goesOn = lines.size() > first && same(part.from, before);
    if (goesOn) lines.back().endsAtTo = false;
    lines.push_back({part, !goesOn, true, number});
    before = part.to;
  }
}

bool CanBeSeen(const PathPiece& path) {
  return path.alpha > 0 && path.colour != kWhite;
}

}  // namespace

std::vector<SnapLine> SnapLinesOf(const PageContent& content) {
  std::vector<SnapLine> lines;
  uint32_t curves = 0;
  for (const PathPiece& path : content.paths) {
    if (!CanBeSeen(path)) continue;
    const bool fill = path.kind == PathPiece::Kind::Fill;
    PagePoint start;
    PagePoint at;
    for (const PathStep& step : path.steps) {
      switch (step.kind) {
        case PathStep::Kind::Move:
          if (fill) AddLine(lines, at, start, path.clip);
          start = step.at;
          break;
        case PathStep::Kind::Curve:
          AddCurve(lines, at, step, path.clip, ++curves);
          break;
        default:
          AddLine(lines, at, step.at, path.clip);
      }
      at = step.at;
    }
    if (fill) AddLine(lines, at, start, path.clip);
  }
  return lines;
}

}  // namespace tamo
