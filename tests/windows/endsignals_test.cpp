#include "windows/endsignals.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <csignal>

#include "windows/application.h"

// The system asks the program to end.

namespace tamo {
namespace {

class EndSignalsTest : public test::WithApplication, public testing::TestWithParam<int> {};

TEST_P(EndSignalsTest, AreTakenInTheEventLoop) {
  int asked = 0;
  const EndSignals signals([&asked] { ++asked; });
  ASSERT_EQ(std::raise(GetParam()), 0);
  EXPECT_EQ(asked, 0) << "nothing is done in the handler of a signal";
  QCoreApplication::processEvents();
  EXPECT_EQ(asked, 1);
  std::raise(GetParam());
  std::raise(GetParam());
  QCoreApplication::processEvents();
  EXPECT_EQ(asked, 2) << "asked twice at once, told once";
}

INSTANTIATE_TEST_SUITE_P(All, EndSignalsTest, testing::Values(SIGTERM, SIGHUP, SIGINT));

}  // namespace
}  // namespace tamo
