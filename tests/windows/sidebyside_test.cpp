#include "windows/sidebyside.h"

#include <gtest/gtest.h>

#include "windows/application.h"

namespace tamo {
namespace {

constexpr QSize kPlan(760, 480);
constexpr QSize kTakeoff(700, 330);

TEST(SideBySide, AStripAlongTheFootOfAnOrdinaryScreen) {
  for (const QSize size : {QSize(1366, 768), QSize(1920, 1040)}) {
    const QRect screen(QPoint(0, 20), size);
    const SidePlaces places = PlacesSideBySide(screen, {760, 400}, kTakeoff);
    EXPECT_FALSE(places.plan.intersects(places.takeoff));
    EXPECT_TRUE(screen.contains(places.plan) && screen.contains(places.takeoff));
    EXPECT_EQ(places.takeoff.bottom(), screen.bottom());
    EXPECT_EQ(places.takeoff.width(), screen.width());
    EXPECT_EQ(places.plan.top(), screen.top());
    EXPECT_GE(places.takeoff.height(), kTakeoff.height());
    EXPECT_GT(places.plan.height(), screen.height() / 2);
  }
}

TEST(SideBySide, BesideThePlanOnAWideScreen) {
  const QRect screen(0, 0, 3440, 1400);
  const SidePlaces places = PlacesSideBySide(screen, kPlan, kTakeoff);
  EXPECT_FALSE(places.plan.intersects(places.takeoff));
  EXPECT_EQ(places.takeoff.height(), screen.height());
  EXPECT_EQ(places.plan.height(), screen.height());
  EXPECT_GE(places.plan.width(), 1200);
}

TEST(SideBySide, ASmallScreenHasBothWhole) {
  const QRect screen(0, 0, 800, 600);
  const SidePlaces places = PlacesSideBySide(screen, kPlan, kTakeoff);
  EXPECT_TRUE(screen.contains(places.plan) && screen.contains(places.takeoff));
  EXPECT_EQ(places.takeoff.bottom(), screen.bottom());
  EXPECT_EQ(places.takeoff.height(), kTakeoff.height());
  EXPECT_GE(places.plan.height(), kPlan.height());
}

// The plan gets its place back with the last takeoff form, and never comes up by itself.
TEST(SideBySide, ThePlanStaysAsideUntilTheLastTakeoffIsPutAway) {
  test::Application();
  QWidget plan, rooms, areas;
  const QRect before(10, 10, 500, 400);
  plan.setGeometry(before);
  SideBySide side{QString()};
  side.Arrange(QStringLiteral("RFSForm"), rooms, plan);
  const QRect aside = plan.geometry();
  ASSERT_NE(aside, before);
  side.Arrange(QStringLiteral("EstimateForm"), areas, plan);
  side.Leave(QStringLiteral("RFSForm"), rooms);
  EXPECT_EQ(plan.geometry(), aside);
  side.Leave(QStringLiteral("EstimateForm"), areas);
  EXPECT_EQ(plan.geometry(), before);
  EXPECT_FALSE(plan.isVisible());
}

}  // namespace
}  // namespace tamo
