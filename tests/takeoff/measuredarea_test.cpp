#include "takeoff/measuredarea.h"

#include <gtest/gtest.h>

#include "support/room.h"

namespace tamo::test {
namespace {

struct MeasuredArea : ::testing::Test, FormRoom {
  Form form{desk, "F"};
  TextField units{form, "Units"};
  TextField height{form, "Hite"};
  TextField length{form, "Length"};
  QString words;

  bool Put(const char* unit, const char* area) {
    units.SetText(unit);
    return PutArea({units, height, length}, area, words);
  }
};

TEST_F(MeasuredArea, ASurfaceGetsOneAndTheSquareFeet) {
  height.SetText("9");
  EXPECT_TRUE(Put("SF", "1,350.0"));
  EXPECT_EQ(height.Text(), "1");
  EXPECT_EQ(length.Text(), "1,350.0");
  EXPECT_EQ(words, "");
}

TEST_F(MeasuredArea, SquareYardsAreMadeOfThem) {
  EXPECT_TRUE(Put("SY ", "350.0"));
  EXPECT_EQ(length.Text(), "38.9");
  EXPECT_EQ(words, "350.0 square feet are 38.9 square yards.");
}

TEST_F(MeasuredArea, LengthsAndCountsTakeNone) {
  length.SetText("12.0");
  for (const char* unit : {"LF", "ea", "CT", ""}) {
    EXPECT_FALSE(Put(unit, "350.0"));
    EXPECT_EQ(length.Text(), "12.0");
    EXPECT_EQ(height.Text(), "");
    EXPECT_FALSE(words.isEmpty());
  }
}

TEST_F(MeasuredArea, ACutOutGoesOffTheAreaThatStands) {
  Put("SF", "350.0");
  EXPECT_TRUE(Put("SF", "-12.3"));
  EXPECT_EQ(length.Text(), "337.7");
  length.Clear();  // it was entered
  EXPECT_TRUE(Put("SF", "-12.3"));
  EXPECT_EQ(length.Text(), "-12.3") << "goes off the line when it is entered";
  height.SetText("9");
  length.SetText("10.0");
  EXPECT_TRUE(Put("SF", "-2.0"));
  EXPECT_EQ(length.Text(), "-2.0") << "a length of 9 feet high is no area";
}

TEST_F(MeasuredArea, TwoCutOutsGoOffTheLineTogether) {
  Put("SF", "-30.0");
  EXPECT_TRUE(Put("SF", "-20.5"));
  EXPECT_EQ(length.Text(), "-50.5");
}

}  // namespace
}  // namespace tamo::test
