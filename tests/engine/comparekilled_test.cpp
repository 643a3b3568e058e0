#include <atomic>
#include <csignal>
#include <thread>

#include "plans/comparison.h"
#include "plans/planfixture.h"
#include "plans/workerplan.h"

// Two revisions are compared while the processes that read them are ended.

using namespace tamo;
using namespace tamo::test;

namespace {

class MortalEngine : public PlanEngine {
 public:
  std::shared_ptr<EnginePlan> NewPlan(std::shared_ptr<PlanSource> source) override {
    const auto plan = std::make_shared<WorkerPlan>(workers_, std::move(source));
    const std::lock_guard<std::mutex> guard(mutex_);
    plans_.push_back(plan);
    return plan;
  }
  // Of the plans in their order.
  void Kill(size_t number) {
    const std::lock_guard<std::mutex> guard(mutex_);
    const auto plan = number < plans_.size() ? plans_[number].lock() : nullptr;
    const pid_t process = plan == nullptr ? -1 : plan->Process();
    if (process > 0) ::kill(process, SIGKILL);
  }

 private:
  const std::shared_ptr<WorkerSource> workers_ = std::make_shared<WorkerSource>(TAMO_ENGINE);
  std::mutex mutex_;
  std::vector<std::weak_ptr<WorkerPlan>> plans_;
};

QByteArray Lines(int count, int more) {
  QByteArray content = "1 w 20 20 572 752 re S\n";
  for (int i = 0; i < count; ++i) {
    content += QByteArray::number(40 + i % 50 * 10) + ' ' + QByteArray::number(40 + i / 50 * 9) +
               " m " + QByteArray::number(46 + i % 50 * 10) + ' ' +
               QByteArray::number(44 + i / 50 * 9) + " l S\n";
  }
  for (int i = 0; i < more; ++i) content += "300 400 60 40 re S\n";
  return content;
}

struct CompareKilled : PlanFixture {
  MortalEngine mortal;
};

}  // namespace

TEST_F(CompareKilled, EndsInPlacesOrInWordsAndTheMarksStay) {
  draw = std::make_unique<PdfDraw>(files, mortal);
  const QString now = Write("now.pdf", MakePdf({{"/MediaBox[0 0 612 792]", Lines(4000, 1)}}));
  Write("old.pdf", MakePdf({{"/MediaBox[0 0 612 792]", Lines(4000, 0)}}));
  ASSERT_EQ(draw->OpenFile(now, ""), 0) << draw->Problem().toStdString();
  draw->DrawLine({100, 100}, {300, 100});
  int found = 0;
  for (int round = 0; round < 6; ++round) {
    std::atomic<bool> over = false;
    std::thread killer([&] {
      // The plan in front, and the one laid over it, whose number grows with each round.
      for (int i = 0; i < 4 && !over; ++i) {
        std::this_thread::sleep_for(std::chrono::milliseconds(15 + 20 * round));
        mortal.Kill(i % 2 == 0 ? size_t(round) + 1 : 0);
      }
    });
    draw->Compared().Begin(Path("old.pdf"), "");
    EXPECT_TRUE(draw->Compared().Jobs().Settle(60000));
    over = true;
    killer.join();
    const SheetsCompared* known = draw->Compared().Known();
    if (known != nullptr && known->places.size() == 1) ++found;
    EXPECT_FALSE(draw->Compared().Words().isEmpty());
    EXPECT_EQ(draw->MarksAsDrawn().size(), 1U);
  }
  EXPECT_GT(found, 0) << "a worker that ended is replaced";
  EXPECT_EQ(draw->SaveAs(now), 0) << draw->Problem().toStdString();
}
