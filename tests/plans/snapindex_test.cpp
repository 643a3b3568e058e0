#include "plans/snapindex.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

#include "plans/outline.h"

namespace tamo::test {
namespace {

SnapLine Line(double x1, double y1, double x2, double y2) {
  return {{{x1, y1}, {x2, y2}}};
}

void ExpectHit(const SnapIndex& index, PagePoint at, SnapKind kind, PagePoint place,
               const std::optional<PagePoint>& from = {}) {
  const std::vector<SnapHit> hits = index.Near(at, 10, from);
  ASSERT_FALSE(hits.empty()) << at.x << ' ' << at.y;
  EXPECT_EQ(SnapInWords(hits[0].kind), SnapInWords(kind)) << at.x << ' ' << at.y;
  EXPECT_NEAR(hits[0].at.x, place.x, 1e-9);
  EXPECT_NEAR(hits[0].at.y, place.y, 1e-9);
}

TEST(SnapIndex, TakesTheSurestPlaceWithinReach) {
  const SnapIndex index({Line(100, 100, 300, 100), Line(150, 20, 150, 180)});
  ExpectHit(index, {104, 103}, SnapKind::End, {100, 100});
  ExpectHit(index, {153, 98}, SnapKind::Intersection, {150, 100});
  ExpectHit(index, {203, 104}, SnapKind::Middle, {200, 100});
  ExpectHit(index, {252, 97}, SnapKind::Nearest, {252, 100});
  ExpectHit(index, {252, 97}, SnapKind::Foot, {255, 100}, PagePoint{255, 40});
  EXPECT_TRUE(index.Near({252, 115}, 10, {}).empty());
  EXPECT_TRUE(index.Near({-500, 9e5}, 10, {}).empty());
  EXPECT_TRUE(SnapIndex({}).Near({10, 10}, 10, {}).empty());
}

TEST(SnapIndex, EveryPlaceOnceBestFirst) {
  const SnapIndex index({Line(100, 100, 200, 100), Line(100, 100, 200, 100),
                         Line(100, 100, 100, 200), Line(104, 96, 104, 300)});
  const std::vector<SnapHit> hits = index.Near({102, 101}, 10, {});
  for (size_t i = 0; i < hits.size(); ++i) {
    for (size_t j = i + 1; j < hits.size(); ++j) {
      EXPECT_GT(Distance(hits[i].at, hits[j].at), 0.01);
      EXPECT_LE(hits[i].kind, hits[j].kind);
    }
  }
  ASSERT_GE(hits.size(), 3U);
  EXPECT_EQ(hits[0].kind, SnapKind::End);
  EXPECT_EQ(hits[2].kind, SnapKind::Intersection);
}

TEST(SnapIndex, MarksTakePart) {
  const SnapIndex index({Line(0, 0, 10, 0)});
  const SnapLine mark = Line(300, 300, 400, 300);
  EXPECT_EQ(index.Near({302, 301}, 10, {}, {&mark, 1})[0].kind, SnapKind::End);
}

// As good as looking at every line.
TEST(SnapIndex, FindsTheNearestOfManyLinesWhereverTheyLie) {
  std::mt19937 random(11);
  std::uniform_real_distribution<double> place(0, 2000);
  std::uniform_real_distribution<double> way(-300, 300);
  std::vector<SnapLine> lines;
  for (int i = 0; i < 3000; ++i) {
    const double x = place(random);
    const double y = place(random);
    lines.push_back(i % 5 == 0 ? Line(x, y, x, y + way(random))
                               : Line(x, y, x + way(random), y + way(random) / (i % 7 + 1)));
  }
  const SnapIndex index(lines);
  for (int i = 0; i < 2000; ++i) {
    const PagePoint at = {place(random), place(random)};
    double nearest = 1e9;
    for (const SnapLine& line : lines)
      nearest = std::min(nearest, DistanceToLine(at, line.line.from, line.line.to));
    double found = 1e9;
    for (const SnapHit& hit : index.Near(at, 8, {})) found = std::min(found, Distance(at, hit.at));
    if (nearest > 8) {
      EXPECT_EQ(found, 1e9);
    } else {
      EXPECT_NEAR(found, nearest, 0.021);
    }
  }
}

PathPiece Piece(PathPiece::Kind kind, std::vector<PathStep> steps) {
  PathPiece piece;
  piece.kind = kind;
  piece.steps = std::move(steps);
  piece.clip = {0, 0, 1000, 1000};
  return piece;
}

TEST(SnapLines, FillsAreClosedClipsCutAndWhiteIsLeftOut) {
  using Step = PathStep::Kind;
  PageContent content;
  content.paths = {Piece(PathPiece::Kind::Fill, {{Step::Move, {10, 10}, {}, {}},
                                                 {Step::Line, {50, 10}, {}, {}},
                                                 {Step::Line, {50, 40}, {}, {}}})};
  EXPECT_EQ(SnapLinesOf(content).size(), 3U);
  content.paths[0].kind = PathPiece::Kind::Stroke;
  EXPECT_EQ(SnapLinesOf(content).size(), 2U);
  content.paths[0].clip = {0, 0, 30, 1000};
  const std::vector<SnapLine> cut = SnapLinesOf(content);
  ASSERT_EQ(cut.size(), 1U);
  EXPECT_EQ(cut[0].line.to.x, 30);
  content.paths[0].colour = 0xffffff;
  EXPECT_TRUE(SnapLinesOf(content).empty());
}

TEST(SnapLines, ACurveHasTwoEndsAndNoMiddleAndNoCrossingsOfItsOwn) {
  using Step = PathStep::Kind;
  PageContent content;
  content.paths = {
      Piece(PathPiece::Kind::Stroke,
            {{Step::Move, {100, 100}, {}, {}}, {Step::Curve, {200, 200}, {155, 100}, {200, 145}}})};
  const std::vector<SnapLine> lines = SnapLinesOf(content);
  ASSERT_GT(lines.size(), 8U);
  int ends = 0;
  for (const SnapLine& line : lines) ends += int(line.endsAtFrom) + int(line.endsAtTo);
  EXPECT_EQ(ends, 2);
  const SnapIndex index(lines);
  ExpectHit(index, {101, 99}, SnapKind::End, {100, 100});
  EXPECT_EQ(index.Near({171, 130}, 5, {})[0].kind, SnapKind::Nearest);
}

}  // namespace
}  // namespace tamo::test
