#include "plans/openingpatience.h"

#include <gtest/gtest.h>

using namespace tamo;

TEST(OpeningPatience, NobodyWaitsForWhatIsNotInSight) {
  OpeningPatience patience;
  EXPECT_EQ(patience.Now(), 10000);
  patience.Set(6, 0);
  EXPECT_EQ(patience.Now(), 6);
  patience.SetSeen(false);
  EXPECT_EQ(patience.Now(), 0);
  EXPECT_EQ(patience.InSight(), 6);
  patience.Set(50);
  EXPECT_EQ(patience.Now(), 50) << "the same for both";
  patience.SetLongest(300);
  EXPECT_EQ(patience.Longest(), 300);
}
