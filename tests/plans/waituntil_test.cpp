#include "plans/waituntil.h"

#include <gtest/gtest.h>

using namespace tamo;

TEST(WaitUntil, AsksAtLeastOnceAndNotForEver) {
  int asked = 0;
  EXPECT_TRUE(WaitUntil(0, [&] { return ++asked == 1; }));
  EXPECT_FALSE(WaitUntil(0, [&] { return ++asked == 0; }));
  EXPECT_EQ(asked, 2);
  EXPECT_TRUE(WaitUntil(20000, [&] { return ++asked == 10; }));
  EXPECT_FALSE(WaitUntil(10, [] { return false; }));
}
