#include "plans/outline.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <random>

#include "plans/outlinework.h"

namespace tamo::test {
namespace {

using Points = std::vector<PagePoint>;

const Points kSquare = {{0, 0}, {10, 0}, {10, 10}, {0, 10}};
const Points kBay = {{0, 0}, {30, 0}, {30, 30}, {20, 30}, {20, 10}, {10, 10}, {10, 30}, {0, 30}};

TEST(Outline, LengthAndArea) {
  EXPECT_DOUBLE_EQ(OutlineLength(kSquare, false), 30);
  EXPECT_DOUBLE_EQ(OutlineLength(kSquare, true), 40);
  EXPECT_DOUBLE_EQ(OutlineArea(kSquare), 100);
  EXPECT_DOUBLE_EQ(OutlineArea(Points(kSquare.rbegin(), kSquare.rend())), 100);
  EXPECT_DOUBLE_EQ(OutlineArea(kBay), 700);
  EXPECT_DOUBLE_EQ(OutlineLength(Points{{3, 4}}, true), 0);
  EXPECT_DOUBLE_EQ(OutlineArea({}), 0);
}

TEST(Outline, AreaStaysTrueFarFromTheCornerOfTheSheet) {
  const Points far = {{99000.5, 88000.25}, {99001.5, 88000.25}, {99001.5, 88001.25}};
  EXPECT_NEAR(OutlineArea(far), 0.5, 1e-9);
}

TEST(Outline, TellsWhetherItCrossesItself) {
  EXPECT_FALSE(CrossesItself(kSquare));
  EXPECT_FALSE(CrossesItself(kBay));
  EXPECT_TRUE(CrossesItself(Points{{0, 0}, {10, 10}, {10, 0}, {0, 10}})) << "a bow";
  EXPECT_TRUE(CrossesItself(Points{{0, 0}, {10, 0}, {5, 0}, {5, 5}})) << "back over its own side";
  EXPECT_TRUE(CrossesItself(Points{{0, 0}, {10, 0}, {5, 5}, {5, 0}, {0, 5}})) << "touches a side";
  EXPECT_FALSE(CrossesItself(Points{{0, 0}, {5, 0}, {10, 0}, {10, 10}})) << "a corner on a side";
}

TEST(Outline, HoldsPlacesAndOutlines) {
  EXPECT_TRUE(HoldsPlace(kBay, {5, 20}, 0));
  EXPECT_FALSE(HoldsPlace(kBay, {15, 20}, 0)) << "in the bay";
  EXPECT_TRUE(HoldsPlace(kSquare, {11, 5}, 2));
  EXPECT_FALSE(HoldsPlace(kSquare, {13, 5}, 2));
  EXPECT_TRUE(HoldsOutline(kSquare, Points{{2, 2}, {4, 2}, {4, 4}}, 0));
  EXPECT_FALSE(HoldsOutline(kSquare, Points{{2, 2}, {14, 2}, {4, 4}}, 2));
  EXPECT_FALSE(HoldsOutline(kBay, Points{{2, 12}, {28, 12}, {28, 28}, {2, 28}}, 1))
      << "over the bay";
}

TEST(Outline, AnArcIsAsLongAsTheCircleIs) {
  std::mt19937 random(7);
  std::uniform_real_distribution<double> radius(5, 900);
  std::uniform_real_distribution<double> angle(0, 2 * std::numbers::pi);
  for (int i = 0; i < 500; ++i) {
    const double r = radius(random);
    const double start = angle(random);
    const double sweep = (0.2 + angle(random) * 0.9) * (i % 2 == 0 ? 1 : -1);
    const auto at = [&](double part) {
      return PagePoint{1000 + r * std::cos(start + sweep * part),
                       1000 + r * std::sin(start + sweep * part)};
    };
    Points way = {at(0)};
    const Points arc = ArcThrough(at(0), at(0.4), at(1));
    way.insert(way.end(), arc.begin(), arc.end());
    EXPECT_DOUBLE_EQ(way.back().x, at(1).x);
    EXPECT_NEAR(OutlineLength(way, false) / (r * std::abs(sweep)), 1, 0.001) << r << ' ' << sweep;
  }
}

TEST(Outline, ThreePointsOnOneLineAreThatLine) {
  EXPECT_EQ(ArcThrough({0, 0}, {5, 5}, {10, 10}).size(), 1U);
  EXPECT_EQ(ArcThrough({0, 0}, {0, 0}, {10, 10}).size(), 1U);
  EXPECT_EQ(ArcThrough({0, 0}, {5, 5}, {0, 0}).size(), 1U);
}

TEST(Outline, TheLabelStandsInside) {
  const PagePoint middle = RoomiestPlace(kSquare);
  EXPECT_DOUBLE_EQ(middle.x, 5);
  EXPECT_NEAR(middle.y, 5, 0.5);
  EXPECT_TRUE(HoldsPlace(kBay, RoomiestPlace(kBay), 0));
}

TEST(OutlineWork, PointsAreTakenBackOneByOneAndAnArcAsOne) {
  OutlineWork work;
  work.Begin(Mark::Kind::Polyline, false, 1, {0, 0});
  work.Add({10, 0});
  work.Add({10, 0});
  EXPECT_EQ(work.Points().size(), 2U) << "a place pressed twice";
  work.TurnArc();
  work.Add({15, 5});
  EXPECT_TRUE(work.InArc());
  EXPECT_EQ(work.Points().size(), 2U);
  work.Add({10, 10});
  EXPECT_FALSE(work.InArc());
  EXPECT_GT(work.Points().size(), 10U);
  work.TakeBack();
  EXPECT_EQ(work.Points().size(), 2U);
  work.TakeBack();
  work.TakeBack();
  EXPECT_FALSE(work.Active());
}

}  // namespace
}  // namespace tamo::test
