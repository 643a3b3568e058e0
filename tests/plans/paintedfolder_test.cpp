#include <QDirIterator>
#include <chrono>
#include <condition_variable>
#include <mutex>
#include <thread>

#include "plans/planfixture.h"

// Every plan of a folder, painted by several threads at once: for the thread sanitizer, and for
// trying a collection. The folder is named by TAMO_PAINTED_PLANS.

using namespace tamo;
using namespace tamo::test;

namespace {

constexpr auto kLongest = std::chrono::seconds(2);  // of one plan

std::shared_ptr<EnginePlan> OpenedPlan(Disk& disk, PlanEngine& engine, const QString& path,
                                       PlanContents& contents) {
  std::shared_ptr<FileReader> reader;
  if (disk.OpenToRead(path, reader) != 0) return nullptr;
  auto plan = engine.NewPlan(std::make_shared<PlanSource>(reader, reader->Size()));
  contents = plan->Open("");
  if (contents.wantsPassword) contents = plan->Open("plan");
  return plan;
}

// Stops the work on one plan when it has had its time.
class Bell {
 public:
  explicit Bell(CancelFlag& cancel) : ringer_([this, &cancel] { Wait(cancel); }) {}
  ~Bell() {
    {
      const std::lock_guard<std::mutex> guard(mutex_);
      done_ = true;
    }
    wake_.notify_all();
    ringer_.join();
  }

 private:
  void Wait(CancelFlag& cancel) {
    std::unique_lock<std::mutex> lock(mutex_);
    if (!wake_.wait_for(lock, kLongest, [this] { return done_; })) cancel.Cancel();
  }
  std::mutex mutex_;
  std::condition_variable wake_;
  bool done_ = false;
  std::thread ringer_;
};

void PaintAtOnce(EnginePlan& plan, const std::shared_ptr<LoadedPage>& page, CancelFlag* cancels) {
  std::vector<std::thread> threads;
  int at = 0;
  for (const double zoom : {0.4, 1.0, 1.7, 3.1}) {
    threads.emplace_back([&plan, &page, zoom, &cancel = cancels[at++]] {
      std::vector<uint32_t> pixels(400 * 400);
      plan.Paint(*page, {zoom, 0, 20, 20, 400, 400, false}, cancel, pixels.data());
    });
  }
  threads.emplace_back([&plan, &cancel = cancels[at]] { plan.ReadContent(1, cancel); });
  for (std::thread& thread : threads) thread.join();
}

}  // namespace

using PaintedFolder = PlanFixture;

TEST_F(PaintedFolder, EachPlanIsPaintedByManyThreadsAtOnce) {
  const QString from = qEnvironmentVariable("TAMO_PAINTED_PLANS");
  if (from.isEmpty()) GTEST_SKIP() << "TAMO_PAINTED_PLANS names no folder";
  QDirIterator each(from, {"*.pdf"}, QDir::Files, QDirIterator::Subdirectories);
  while (each.hasNext()) {
    const QString path = each.next();
    SCOPED_TRACE(path.toStdString());
    PlanContents contents;
    const auto plan = OpenedPlan(disk, engine, path, contents);
    ASSERT_NE(plan, nullptr);
    if (contents.error != 0) continue;
    CancelFlag reading;
    CancelFlag painting[5];
    std::vector<std::unique_ptr<Bell>> bells;
    for (CancelFlag* cancel = painting; cancel != std::end(painting); ++cancel)
      bells.push_back(std::make_unique<Bell>(*cancel));
    bells.push_back(std::make_unique<Bell>(reading));
    if (const auto page = plan->LoadPage(1, reading)) PaintAtOnce(*plan, page, painting);
  }
}
