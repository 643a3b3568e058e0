#include "plans/sheetjobs.h"

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <thread>

using namespace tamo;

namespace {

constexpr int kPatience = 20000;

struct Jobs : ::testing::Test {
  SheetJobs jobs;
  QString told;
  std::atomic<bool> begun = false;
  std::atomic<bool> stopped = false;

  SheetJobs::Job Telling(const char* word) {
    return [this, word](CancelFlag&, const SheetJobs::TellNews& tell) {
      tell([this, word] { told += QLatin1String(word); });
    };
  }
  // Works until it is stopped, then has news all the same.
  SheetJobs::Job Endless() {
    return [this](CancelFlag& cancel, const SheetJobs::TellNews& tell) {
      begun = true;
      while (!cancel.Cancelled()) std::this_thread::sleep_for(std::chrono::milliseconds(1));
      stopped = true;
      tell([this] { told += QStringLiteral("late"); });
    };
  }
  void WaitForBegin() const {
    while (!begun) std::this_thread::sleep_for(std::chrono::milliseconds(1));
  }
};

}  // namespace

TEST_F(Jobs, NewsComeInTheirOrderOnTheThreadThatAsks) {
  const std::thread::id mine = std::this_thread::get_id();
  std::thread::id heard;
  jobs.Post(Telling("a"));
  jobs.PostLasting(Telling("b"));
  jobs.Post([&](CancelFlag&, const SheetJobs::TellNews& tell) {
    EXPECT_NE(std::this_thread::get_id(), mine);
    tell([&] { heard = std::this_thread::get_id(); });
  });
  EXPECT_EQ(told, "") << "nothing before they are taken";
  EXPECT_TRUE(jobs.Settle(kPatience));
  EXPECT_EQ(told, "ab");
  EXPECT_EQ(heard, mine);
}

TEST_F(Jobs, LeavingTheSheetStopsItsJobsAndTheirNewsButNoLastingOne) {
  jobs.Post(Endless());
  jobs.PostLasting(Telling("lasting"));
  WaitForBegin();
  jobs.LeaveSheet();
  EXPECT_TRUE(jobs.Settle(kPatience));
  EXPECT_TRUE(stopped);
  EXPECT_EQ(told, "lasting");
}

TEST_F(Jobs, NewsThatWaitAreDroppedWithTheirSheet) {
  jobs.Post(Telling("a"));
  jobs.LeaveSheet();
  jobs.Post(Telling("b"));
  EXPECT_TRUE(jobs.Settle(kPatience));
  EXPECT_EQ(told, "b");
}

TEST_F(Jobs, StoppingAllStopsLastingOnes) {
  jobs.PostLasting(Endless());
  WaitForBegin();
  jobs.StopAll();
  EXPECT_TRUE(jobs.Settle(kPatience));
  EXPECT_TRUE(stopped);
  EXPECT_EQ(told, "");
}

TEST_F(Jobs, SettlingIsBounded) {
  jobs.Post(Endless());
  WaitForBegin();
  EXPECT_FALSE(jobs.Settle(20));
  jobs.StopAll();
  EXPECT_TRUE(jobs.Settle(kPatience));
}

TEST_F(Jobs, NothingToDoIsSettled) {
  EXPECT_TRUE(jobs.Settle(0));
  jobs.LeaveSheet();
  jobs.StopAll();
}
