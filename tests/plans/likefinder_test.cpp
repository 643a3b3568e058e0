#include "plans/likefinder.h"

#include <gtest/gtest.h>

#include "plans/likehull.h"
#include "support/likesymbols.h"

using namespace tamo;
using namespace tamo::test;

namespace {

struct Lie {
  double angle = 0;
  bool mirrored = false;
  double size = 1;
};

// A sheet put together line by line.
struct LikesFinding : ::testing::Test {
  std::vector<SnapLine> lines;
  std::shared_ptr<std::vector<LikeLetter>> letters = std::make_shared<std::vector<LikeLetter>>();
  PageContent content;

  void Draw(const Symbol& symbol, PagePoint at, const Lie& lie = {}) {
    const auto of = [&](PagePoint own) {
      const double x = own.x * (lie.mirrored ? -lie.size : lie.size);
      const double y = own.y * lie.size;
      return PagePoint{at.x + x * std::cos(lie.angle) - y * std::sin(lie.angle),
                       at.y + x * std::sin(lie.angle) + y * std::cos(lie.angle)};
    };
    for (const SymbolLine& line : symbol) {
      PathPiece path;
      path.kind = PathPiece::Kind::Stroke;
      path.clip = {0, 0, 2000, 2000};
      path.steps.push_back({PathStep::Kind::Move, of(line.from), {}, {}});
      path.steps.push_back({line.curved ? PathStep::Kind::Curve : PathStep::Kind::Line, of(line.to),
                            of(line.by1), of(line.by2)});
      content.paths.push_back(path);
    }
  }
  LikesFound Find(const PageBox& box) const {
    const LikeSheet sheet(std::make_shared<SnapIndex>(SnapLinesOf(content)), letters);
    CancelFlag cancel;
    std::atomic<int> perCent = 0;
    return FindLikes(sheet, box, cancel, perCent);
  }
  LikesFound FindAt(PagePoint at, double around = 20) const {
    return Find({at.x - around, at.y - around, at.x + around, at.y + around});
  }
};

Symbol Line(PagePoint from, PagePoint to) {
  return {{from, to, false, {}, {}}};
}

}  // namespace

TEST_F(LikesFinding, TurnedAndMirroredOnesAreFoundLargerAndSmallerOnesAreNot) {
  const Symbol flag = Flag().symbol;
  Draw(flag, {100, 100});
  Draw(flag, {200, 100}, {0.7});
  Draw(flag, {300, 100}, {1.5707963267948966});
  Draw(flag, {400, 100}, {2.1, true});
  Draw(flag, {500, 100}, {0, false, 1.1});
  Draw(flag, {600, 100}, {0, false, 0.9});
  const LikesFound found = FindAt({100, 100});
  EXPECT_EQ(found.problem.toStdString(), "");
  ASSERT_EQ(found.likes.size(), 4U);
  EXPECT_EQ(found.sure, 4U);
  EXPECT_NEAR(found.likes[0].middle.x, 101, 1);
  EXPECT_FALSE(found.likes[1].pose.Mirrored());
  EXPECT_TRUE(found.likes[3].pose.Mirrored());
}

TEST_F(LikesFinding, LongLinesThatCrossAreNoMatterShortOnesAreAskedAbout) {
  const Symbol door = Door().symbol;
  for (const double x : {100.0, 200.0, 300.0}) Draw(door, {x, 100});
  Draw(Line({150, 110}, {290, 110}), {0, 0});  // a wall through the second
  Draw(Line({310, 105}, {316, 111}), {0, 0});  // and a tick in the third
  const LikesFound found = Find({95, 95, 131, 131});
  ASSERT_EQ(found.likes.size(), 3U);
  EXPECT_EQ(found.sure, 2U);
  EXPECT_EQ(found.likes[2].doubt.toStdString(), "other lines are in it or at it");
  EXPECT_NEAR(found.likes[2].middle.x, 312.5, 1);
}

TEST_F(LikesFinding, ALineInPiecesIsTheSameLine) {
  const Symbol square = Diffuser().symbol;
  Draw(square, {100, 100});
  Symbol pieces = square;
  pieces[1] = {{6, -6}, {6, 1}, false, {}, {}};
  AddLine(pieces, {6, 1}, {6, 6});
  Draw(pieces, {200, 100});
  Draw(pieces, {300, 100}, {0.4});
  EXPECT_EQ(FindAt({100, 100}).sure, 3U);
  EXPECT_EQ(FindAt({200, 100}).sure, 3U);
}

TEST_F(LikesFinding, LettersInItTellItApart) {
  const Symbol circle = Receptacle().symbol;
  for (const double x : {100.0, 200.0, 300.0, 400.0}) Draw(circle, {x, 100});
  *letters = {{{100, 100}, 'A'}, {{200, 100}, 'A'}, {{300, 100}, 'B'}, {{310, 100}, 'A'}};
  const LikesFound found = FindAt({100, 100});
  ASSERT_EQ(found.likes.size(), 4U);
  EXPECT_EQ(found.sure, 2U);
  EXPECT_EQ(found.likes[2].doubt.toStdString(), "the letters in it are others");
  EXPECT_EQ(found.likes[3].doubt.toStdString(), "no letters are in it");
}

TEST_F(LikesFinding, WhatStandsInAnotherOutlineIsAskedAbout) {
  const SymbolFamily family = Receptacle();
  Draw(family.symbol, {100, 100});
  Draw(family.nearlyAlike[4], {200, 100});
  const LikesFound found = FindAt({100, 100});
  ASSERT_EQ(found.likes.size(), 2U);
  EXPECT_EQ(found.likes[1].doubt.toStdString(), "it stands inside another outline");
}

TEST_F(LikesFinding, WhatIsTooLittleTooMuchOrNothingIsSaid) {
  Draw(Line({100, 100}, {130, 100}), {0, 0});
  Draw(Line({100, 200}, {160, 200}), {0, 0});
  Draw(Line({130, 200}, {190, 200}), {0, 0});
  EXPECT_TRUE(FindAt({115, 100}).problem.startsWith("Only a single line is in the box"));
  EXPECT_TRUE(Find({90, 190, 200, 210}).problem.startsWith("Only a single line is in the box"));
  EXPECT_TRUE(FindAt({500, 500}).problem.startsWith("No line lies wholly in the box"));
  EXPECT_TRUE(Find({110, 90, 120, 110}).problem.startsWith("No line lies wholly in the box"));
  EXPECT_TRUE(Find({300, 300, 300, 300}).problem.startsWith("No line lies wholly in the box"));
  *letters = {{{500, 500}, 'A'}};
  EXPECT_TRUE(FindAt({500, 500}).problem.startsWith("Only letters are in the box"));
  Draw(Line({600, 600}, {600.5, 600}), {0, 0});
  Draw(Line({600, 600}, {600, 600.5}), {0, 0});
  EXPECT_TRUE(FindAt({600, 600}).problem.startsWith("What is in the box is too small"));
  for (int i = 0; i < 2001; ++i) Draw(Line({700, 700.0 + i * 0.1}, {720, 700.0 + i * 0.1}), {0, 0});
  EXPECT_TRUE(Find({690, 690, 1000, 1000}).problem.startsWith("Too much is in the box"));
}

TEST_F(LikesFinding, APatternIsNoSymbol) {
  Symbol cell;
  AddLoop(cell, {{0, 0}, {8, 0}, {8, 8}, {0, 8}});
  for (int i = 0; i < 2500; ++i) Draw(cell, {10.0 + i % 50 * 20, 10.0 + i / 50 * 20});
  const LikesFound found = Find({5, 5, 25, 25});
  EXPECT_TRUE(found.problem.startsWith("More than 2000 places look like this")) << found.sure;
  EXPECT_TRUE(found.likes.empty());
}

TEST_F(LikesFinding, ASearchThatIsNotWantedAnyMoreEndsAtOnce) {
  for (int i = 0; i < 400; ++i) Draw(Flag().symbol, {50.0 + i % 20 * 40, 50.0 + i / 20 * 40});
  const LikeSheet sheet(std::make_shared<SnapIndex>(SnapLinesOf(content)), letters);
  CancelFlag cancel;
  cancel.Cancel();
  std::atomic<int> perCent = 0;
  EXPECT_LE(FindLikes(sheet, {30, 30, 70, 70}, cancel, perCent).likes.size(), 1U);
}

TEST(LikePose, TheNearestPoseOfManyPlaces) {
  const LikePose meant{0, 1, 1, 0, 30, 40};  // mirrored
  std::vector<PointPair> pairs;
  for (const PagePoint at : {PagePoint{0, 0}, PagePoint{10, 0}, PagePoint{3, 7}})
    pairs.push_back({at, meant.Of(at)});
  const LikePose pose = FitPose(pairs, true);
  EXPECT_TRUE(pose.Mirrored());
  EXPECT_NEAR(Distance(pose.Of({5, 9}), meant.Of({5, 9})), 0, 1e-9);
  EXPECT_NEAR(Distance(pose.Back(pose.Of({5, 9})), {5, 9}), 0, 1e-9);
}

TEST(LikeHull, CutsLinesAndSharesAreas) {
  const std::vector<PagePoint> hull = HullOf({{0, 0}, {10, 0}, {10, 10}, {0, 10}, {5, 5}, {10, 5}});
  EXPECT_EQ(hull.size(), 4U);
  PageLine line = {{-5, 5}, {15, 5}};
  ASSERT_TRUE(CutToHull(line, hull, 1));
  EXPECT_NEAR(line.from.x, 1, 1e-9);
  EXPECT_NEAR(line.to.x, 9, 1e-9);
  PageLine out = {{-5, -5}, {15, -5}};
  EXPECT_FALSE(CutToHull(out, hull, 0));
  EXPECT_NEAR(SharedArea(hull, HullOf({{5, 5}, {20, 5}, {20, 20}, {5, 20}})), 25, 1e-9);
  EXPECT_EQ(HullOf({{1, 1}, {1, 1}}).size(), 1U);
  EXPECT_FALSE(InHull({1, 1}, HullOf({{0, 0}, {2, 2}}), 0));
}
