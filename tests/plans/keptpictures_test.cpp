#include <gtest/gtest.h>
#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <fstream>
#include <memory>
#include <mutex>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include "plans/coarsepictures.h"
#include "plans/painterstate.h"
#include "plans/planpainter.h"
#include "plans/smallpictures.h"
#include "whiteplan.h"

// What a day of turning pages leaves of pictures and pages: so much and no more, and never less
// than what is looked at.

namespace tamo::test {
namespace {

using Pictures = std::vector<std::weak_ptr<const Picture>>;

size_t AliveOf(const Pictures& pictures) {
  return static_cast<size_t>(std::count_if(pictures.begin(), pictures.end(),
                                           [](const auto& picture) { return !picture.expired(); }));
}

std::shared_ptr<Picture> SquareOf(int side) {
  auto picture = std::make_shared<Picture>();
  picture->width = picture->height = side;
  picture->pixels.resize(static_cast<size_t>(side) * static_cast<size_t>(side));
  return picture;
}

// Has memory for so many pages at once.
class NarrowPlan : public WhitePlan {
 public:
  explicit NarrowPlan(int most) : most_(most) {}
  std::shared_ptr<LoadedPage> LoadPage(int /*page*/, CancelFlag& /*cancel*/) override {
    if (*held_ >= most_) return nullptr;
    ++*held_;
    return std::shared_ptr<LoadedPage>(new WhitePage, [held = held_](LoadedPage* page) {
      --*held;
      delete page;
    });
  }

 private:
  const int most_;
  const std::shared_ptr<std::atomic<int>> held_ = std::make_shared<std::atomic<int>>(0);
};

std::shared_ptr<const Picture> Small(PlanPainter& painter, int page, int side) {
  painter.Thumbnail(page, side);
  EXPECT_TRUE(painter.WaitUntilSharp(20000));
  return painter.Thumbnail(page, side);
}

TEST(KeptPictures, SmallOnesOfManyPagesAreDroppedTheOldestFirst) {
  constexpr int kPages = 120;
  constexpr int kSide = 480;
  PlanPainter painter(std::make_shared<NarrowPlan>(3), std::vector<PageSize>(kPages), [] {});
  Pictures made;
  size_t bytes = 0;
  for (int page = 1; page <= kPages; ++page) {
    const auto picture = Small(painter, page, kSide);
    ASSERT_NE(picture, nullptr) << page;
    bytes = picture->pixels.size() * 4;
    made.push_back(picture);
    ASSERT_NE(painter.Thumbnail(1, kSide), nullptr) << "the one that is looked at went";
  }
  EXPECT_LE(AliveOf(made) * bytes, SmallPictures::kMostBytes);
  EXPECT_FALSE(made[kPages - 2].expired());
  EXPECT_TRUE(made[1].expired());
}

// The home page shows the sheet in front larger than the column of the pages does.
TEST(KeptPictures, SizesOfOnePageStandBesideEachOther) {
  PlanPainter painter(std::make_shared<NarrowPlan>(3), std::vector<PageSize>(3), [] {});
  const auto column = Small(painter, 1, 112);
  const auto home = Small(painter, 1, 480);
  ASSERT_NE(column, nullptr);
  ASSERT_NE(home, nullptr);
  EXPECT_EQ(painter.Thumbnail(1, 112), column);
  EXPECT_EQ(painter.Thumbnail(1, 480), home);
  EXPECT_EQ(std::max(home->width, home->height), 480);
}

TEST(KeptPictures, ASmallOneLargerThanAllThatIsKeptIsThereForItself) {
  SmallPictures pictures;
  const auto large = SquareOf(1900);
  pictures.Keep({1, 1024}, large);
  EXPECT_EQ(pictures.Find({1, 1024}), large);
  pictures.Keep({2, 1024}, SquareOf(16));
  EXPECT_EQ(pictures.Find({1, 1024}), nullptr);
  EXPECT_NE(pictures.Find({2, 1024}), nullptr);
}

// Another screen, another window: what was asked for in a size that nobody shows any more goes.
TEST(KeptPictures, SizesThatNobodyAsksForGo) {
  SmallPictures pictures;
  for (int side = 100; side < 200; ++side) {
    pictures.Keep({1, side}, SquareOf(16));
    EXPECT_NE(pictures.Find({1, 100}), nullptr) << side;
  }
  EXPECT_NE(pictures.Find({1, 199}), nullptr);
  EXPECT_NE(pictures.Find({1, 198}), nullptr);
  EXPECT_EQ(pictures.Find({1, 197}), nullptr);
}

// A page that is left while its second half is painted.
TEST(KeptPictures, HalvesOfPagesThatWereLeftAreDropped) {
  PlanPainter::State state;
  state.sizes.resize(100);
  state.looking = true;
  Pictures made;
  for (int page = 1; page <= 100; ++page) {
    state.view.page = page;
    PaintJob job;
    job.kind = PaintJob::Kind::Coarse;
    job.page = page;
    job.list = NarrowPlan(1).LoadPage(page, *(job.cancel = std::make_shared<CancelFlag>()));
    job.began = std::chrono::steady_clock::now();
    const auto half = SquareOf(8);
    made.push_back(half);
    state.Done(job, nullptr, half);
  }
  EXPECT_LE(AliveOf(made), CoarsePictures::kMostPages);
  EXPECT_FALSE(made.back().expired());
}

TEST(KeptPictures, TheCoarsePageInSightStaysWhateverComesLate) {
  CoarsePictures pictures;
  for (int half = 0; half < 2; ++half) pictures.Keep(1, half, SquareOf(8));
  for (int page = 2; page <= 6; ++page) pictures.Keep(page, 0, SquareOf(8));
  pictures.LookAt(1);  // back on it
  pictures.Keep(7, 0, SquareOf(8));
  pictures.Keep(2, 1, SquareOf(8));
  EXPECT_TRUE(pictures.Whole(1));
  EXPECT_EQ(pictures.Pages(), CoarsePictures::kMostPages);
}

// Pages that are kept for a way back must not make another one blank.
TEST(KeptPictures, APageWithoutMemoryTakesThatOfPagesOutOfSight) {
  PlanPainter painter(std::make_shared<NarrowPlan>(2), std::vector<PageSize>(9), [] {});
  for (int page = 1; page <= 9; ++page) {
    painter.Look({page, 1, 0, 0, 0, 100, 100});
    ASSERT_TRUE(painter.WaitUntilSharp(20000)) << page;
    EXPECT_TRUE(painter.TakeFailedPages().empty()) << page;
  }
}

TEST(KeptPictures, APageThatNeverCanBeReadIsSaid) {
  PlanPainter painter(std::make_shared<NarrowPlan>(0), std::vector<PageSize>(3), [] {});
  painter.Look({2, 1, 0, 0, 0, 100, 100});
  ASSERT_TRUE(painter.WaitUntilSharp(20000));
  EXPECT_EQ(painter.TakeFailedPages(), std::vector<int>{2});
}

// Megabytes of this process that are resident.
double Resident() {
  double pages = 0;
  std::ifstream("/proc/self/statm") >> pages >> pages;
  return pages * static_cast<double>(sysconf(_SC_PAGESIZE)) / 1e6;
}

// Pictures are made on many threads and dropped on others, with smaller things between them.
TEST(KeptPictures, TheirMemoryGoesBackToTheSystem) {
  std::vector<std::unique_ptr<std::string>> between;
  std::mutex mutex;
  const double before = Resident();
  for (int round = 0; round < 3; ++round) {
    std::vector<std::shared_ptr<const Picture>> pictures;
    std::vector<std::thread> threads;
    for (int i = 0; i < 8; ++i) {
      threads.emplace_back([&] {
        for (int made = 0; made < 10; ++made) {
          auto picture = SquareOf(1024);
          picture->pixels.assign(picture->pixels.size(), 7);
          auto small = std::make_unique<std::string>(5000, 'x');
          const std::lock_guard<std::mutex> guard(mutex);
          pictures.push_back(std::move(picture));
          between.push_back(std::move(small));
        }
      });
    }
    for (std::thread& thread : threads) thread.join();
    EXPECT_GT(Resident() - before, 300);
    pictures.clear();
    EXPECT_LT(Resident() - before, 30);
  }
  EXPECT_EQ(SquareOf(16)->pixels[255], 0U);
  EXPECT_EQ(SquareOf(1024)->pixels.back(), 0U);
}

}  // namespace
}  // namespace tamo::test
