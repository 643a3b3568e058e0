#include "plans/planpainter.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <memory>
#include <mutex>
#include <utility>
#include <vector>

#include "whiteplan.h"

namespace tamo::test {
namespace {

// Reads pages only as fast as the test lets it.
class SlowPlan : public WhitePlan {
 public:
  std::shared_ptr<LoadedPage> LoadPage(int /*page*/, CancelFlag& /*cancel*/) override {
    std::unique_lock lock(mutex_);
    ++begun_;
    changed_.notify_all();
    changed_.wait(lock, [this] { return allowed_ > 0; });
    --allowed_;
    return std::make_shared<WhitePage>();
  }
  // The reading of so many pages has begun.
  bool Begun(int pages) {
    std::unique_lock lock(mutex_);
    return changed_.wait_for(lock, std::chrono::seconds(20), [&] { return begun_ >= pages; });
  }
  void Allow(int pages) {
    const std::lock_guard lock(mutex_);
    allowed_ += pages;
    changed_.notify_all();
  }

 private:
  std::mutex mutex_;
  std::condition_variable changed_;
  int begun_ = 0;
  int allowed_ = 0;
};

// The pages that are read when their thumbnails scroll away must not take the place of those that
// are asked for later.
TEST(PlanPainter, PagesScrolledAwayWhileTheyAreReadHoldUpNoThumbnail) {
  constexpr int kRemembered = 200;
  constexpr int kScrolled = 5;
  const auto plan = std::make_shared<SlowPlan>();
  PlanPainter painter(plan, std::vector<PageSize>(kRemembered + kScrolled), [] {});
  painter.Thumbnail(1, 64);
  ASSERT_TRUE(plan->Begun(1));
  for (int page = 2; page <= kRemembered; ++page) painter.Thumbnail(page, 64);
  for (int gone = 1; gone <= kScrolled; ++gone) {
    painter.Thumbnail(kRemembered + gone, 64);  // the first page in the row goes
    plan->Allow(1);
    ASSERT_TRUE(plan->Begun(gone + 1)) << "nothing is read any more";
  }
  plan->Allow(kRemembered + kScrolled);
  EXPECT_TRUE(painter.WaitUntilSharp(20000));
  EXPECT_NE(painter.Thumbnail(kRemembered + kScrolled, 64), nullptr);
}

}  // namespace
}  // namespace tamo::test
