#include "plans/twopoints.h"

#include <gtest/gtest.h>

using namespace tamo;

TEST(TwoPoints, AreAskedForFirstOnTheNewThenOnTheOldSheet) {
  TwoPoints points;
  EXPECT_FALSE(points.Asked());
  EXPECT_EQ(points.Words(), QString());
  points.Ask();
  for (const bool old : {false, true, false}) {
    EXPECT_EQ(points.OnOldSheet(), old);
    EXPECT_TRUE(points.Words().startsWith(QStringLiteral("Point ")));
    EXPECT_FALSE(points.Take({10, 10}).has_value());
  }
  EXPECT_TRUE(points.OnOldSheet());
  EXPECT_TRUE(points.Words().startsWith(
      QStringLiteral("Point 2 of 2: the old sheet; press that second place.")));
}

TEST(TwoPoints, SayHowTheOldSheetLies) {
  TwoPoints points;
  points.Ask();
  points.Take({100, 100});  // new
  points.Take({20, 30});    // old
  points.Take({300, 100});  // new
  const std::optional<SheetFit> fit = points.Take({120, 30});
  ASSERT_TRUE(fit.has_value());
  EXPECT_NEAR(fit->Size(), 2, 1e-9);
  EXPECT_NEAR(fit->Turn(), 0, 1e-9);
  EXPECT_NEAR(fit->To({20, 30}).x, 100, 1e-9);
  EXPECT_NEAR(fit->To({120, 30}).x, 300, 1e-9);
  EXPECT_TRUE(points.Asked()) << "until they are left";
  points.Leave();
  EXPECT_FALSE(points.Asked());
}

TEST(TwoPoints, TheSamePlaceTwiceIsAskedForAnewAndSaid) {
  TwoPoints points;
  points.Ask();
  points.Take({100, 100});
  points.Take({20, 30});
  points.Take({100, 100});
  EXPECT_FALSE(points.Take({20, 30}).has_value());
  EXPECT_TRUE(points.Asked());
  EXPECT_FALSE(points.OnOldSheet());
  EXPECT_TRUE(points.Words().startsWith(
      QStringLiteral("Two of the points are the same place. Point 1 of 2")));
  points.Ask();
  EXPECT_TRUE(points.Words().startsWith(QStringLiteral("Point 1 of 2")));
}

TEST(TwoPoints, APressWhileNoneIsAskedForIsPassedOver) {
  TwoPoints points;
  EXPECT_FALSE(points.Take({1, 1}).has_value());
  EXPECT_FALSE(points.Asked());
}
