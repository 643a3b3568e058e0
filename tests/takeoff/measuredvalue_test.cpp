#include "takeoff/measuredvalue.h"

#include <gtest/gtest.h>

#include "support/room.h"

namespace tamo::test {
namespace {

struct MeasuredValueTest : ::testing::Test, FormRoom {
  MeasuredValueTest() {
    measured.target = [this](const TextField&) { return line; };
    form.Show();
  }

  Form form{desk, "F"};
  TextField height{form, "How"};
  TextField length{form, "Length"};
  MeasuredValue measured{form};
  QString line = QStringLiteral("Room 101, Wall Paint");
};

// A height that is measured after the length leaves the length with its own line all the same.
TEST_F(MeasuredValueTest, EachFieldKeepsTheLineItWasMeasuredFor) {
  measured.Into(length, "25.3", line);
  measured.Follow();
  measured.Into(height, "8.0", line);
  measured.Follow();
  EXPECT_EQ(length.Text(), "25.3");
  EXPECT_FALSE(measured.Waits());
  measured.Entered(height);
  line = QStringLiteral("Room 101, Ceiling Paint");
  measured.Follow();
  EXPECT_EQ(length.Text(), "");
  EXPECT_EQ(height.Text(), "8.0");
  EXPECT_EQ(measured.MeasuredText.Caption(),
            "25.3 waits: it was measured for Room 101, Wall Paint.");
}

}  // namespace
}  // namespace tamo::test
