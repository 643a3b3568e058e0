#include <atomic>
#include <csignal>
#include <random>
#include <thread>

#include "common/failure.h"
#include "plans/planfixture.h"
#include "plans/workerengine.h"
#include "plans/workerplan.h"
#include "support/sourcefile.h"

// Plans read by a process of its own: the same pictures, and nothing lost when it ends.

using namespace tamo;
using namespace tamo::test;

namespace {

// An engine whose workers can be ended by the test.
class KilledEngine : public PlanEngine {
 public:
  std::shared_ptr<EnginePlan> NewPlan(std::shared_ptr<PlanSource> source) override {
    const auto plan = std::make_shared<WorkerPlan>(workers_, std::move(source));
    const std::lock_guard<std::mutex> guard(mutex_);
    plans_.push_back(plan);
    return plan;
  }
  pid_t Process() {
    std::shared_ptr<WorkerPlan> plan;
    {
      const std::lock_guard<std::mutex> guard(mutex_);
      for (const auto& each : plans_) {
        if (auto alive = each.lock()) plan = std::move(alive);
      }
    }
    return plan == nullptr ? -1 : plan->Process();
  }
  bool Kill() {
    const pid_t process = Process();
    return process > 0 && ::kill(process, SIGKILL) == 0;
  }

 private:
  const std::shared_ptr<WorkerSource> workers_ = std::make_shared<WorkerSource>(TAMO_ENGINE);
  std::mutex mutex_;
  std::vector<std::weak_ptr<WorkerPlan>> plans_;
};

struct Worker : PlanFixture {
  KilledEngine workers;

  std::shared_ptr<EnginePlan> Open(PlanEngine& by, const QString& path) {
    std::shared_ptr<FileReader> reader;
    EXPECT_EQ(disk.OpenToRead(path, reader), 0);
    auto plan = by.NewPlan(std::make_shared<PlanSource>(reader, reader->Size()));
    EXPECT_EQ(plan->Open("").error, 0);
    return plan;
  }
  static std::vector<uint32_t> Painted(EnginePlan& plan, const LoadedPage& page,
                                       const PaintPart& part) {
    std::vector<uint32_t> pixels(size_t(part.width) * size_t(part.height));
    CancelFlag cancel;
    EXPECT_TRUE(plan.Paint(page, part, cancel, pixels.data()));
    return pixels;
  }
  // How far the green of two pictures is apart where it is most.
  static int MostApart(const std::vector<uint32_t>& a, const std::vector<uint32_t>& b) {
    int most = 0;
    for (size_t i = 0; i < a.size(); ++i) {
      most = std::max(most, std::abs(int(a[i] >> 8 & 255) - int(b[i] >> 8 & 255)));
    }
    return most;
  }
  // The bytes that the system gives a worker at most.
  qint64 MostMemory() {
    QFile file(QStringLiteral("/proc/%1/limits").arg(workers.Process()));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    for (const QByteArray& line : file.readAll().split('\n')) {
      if (line.startsWith("Max address space"))
        return line.mid(17).simplified().split(' ')[0].toLongLong();
    }
    return 0;
  }
  QByteArray StatusOf(const char* name) {
    QFile file(QStringLiteral("/proc/%1/status").arg(workers.Process()));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    for (const QByteArray& line : file.readAll().split('\n')) {
      if (line.startsWith(name)) return line.mid(qsizetype(strlen(name))).simplified();
    }
    return {};
  }
};

// Cancels after a time.
class Bell {
 public:
  Bell(CancelFlag& cancel, int milliseconds)
      : ringer_([this, &cancel, milliseconds] {
          std::unique_lock<std::mutex> lock(mutex_);
          const auto time = std::chrono::milliseconds(milliseconds);
          if (!over_.wait_for(lock, time, [this] { return done_; })) cancel.Cancel();
        }) {}
  ~Bell() {
    {
      const std::lock_guard<std::mutex> guard(mutex_);
      done_ = true;
      over_.notify_all();
    }
    ringer_.join();
  }

 private:
  std::mutex mutex_;
  std::condition_variable over_;
  bool done_ = false;
  std::thread ringer_;
};

#ifdef __SANITIZE_ADDRESS__
constexpr bool kSanitized = true;
#elif defined(__has_feature)
constexpr bool kSanitized = __has_feature(address_sanitizer);
#else
constexpr bool kSanitized = false;
#endif

const QList<PdfPage> kThreePages = {{}, {"/MediaBox[0 0 900 300]", "5 w 0 0 m 900 300 l S"}, {}};

}  // namespace

TEST_F(Worker, PaintsWhatTheEngineItselfPaints) {
  const QString path = Write("plan.pdf", MakePdf(kThreePages));
  const auto here = Open(engine, path);
  const auto there = Open(workers, path);
  CancelFlag cancel;
  for (int page = 1; page <= 3; ++page) {
    const auto a = here->LoadPage(page, cancel);
    const auto b = there->LoadPage(page, cancel);
    ASSERT_NE(a, nullptr);
    ASSERT_NE(b, nullptr);
    EXPECT_EQ(a->Size().width, b->Size().width);
    for (const PaintPart& part :
         {PaintPart{1, 0, 0, 0, 300, 300, false}, PaintPart{2.5, 90, 40, 50, 333, 257, true}}) {
      EXPECT_EQ(Painted(*here, *a, part), Painted(*there, *b, part)) << page;
    }
    // Larger than what goes over at once, so painted in strips: the same but for a shade.
    const PaintPart large = {6, 0, 0, 0, 3000, 1700, false};
    EXPECT_LE(MostApart(Painted(*here, *a, large), Painted(*there, *b, large)), 16) << page;
    EXPECT_EQ(here->ReadContent(page, cancel).paths.size(),
              there->ReadContent(page, cancel).paths.size());
  }
  EXPECT_EQ(there->LoadPage(4, cancel), nullptr);
}

TEST_F(Worker, CanDoNothingButItsWork) {
  const auto plan = Open(workers, Write("plan.pdf", MakePdf(kThreePages)));
  EXPECT_EQ(StatusOf("NoNewPrivs:"), "1");
  if (!kSanitized) {
    EXPECT_EQ(StatusOf("Seccomp:"), "2");
  }
  EXPECT_TRUE(WorkerEngine::MissingGuards().isEmpty());
}

TEST_F(Worker, EndsWithItsPlan) {
  auto plan = Open(workers, Write("plan.pdf", MakePdf(kThreePages)));
  const pid_t process = workers.Process();
  ASSERT_GT(process, 0);
  plan.reset();
  // In its own time: nobody waits for the end of a process.
  for (int i = 0; i < 200 && ::kill(process, 0) == 0; ++i) {
    std::this_thread::sleep_for(std::chrono::milliseconds(10));
  }
  EXPECT_NE(::kill(process, 0), 0);
}

TEST_F(Worker, IsReplacedWhenItEnds) {
  const auto plan = Open(workers, Write("plan.pdf", MakePdf(kThreePages)));
  CancelFlag cancel;
  const auto page = plan->LoadPage(2, cancel);
  ASSERT_NE(page, nullptr);
  const PaintPart part = {1, 0, 0, 0, 300, 300, false};
  const auto before = Painted(*plan, *page, part);
  ASSERT_TRUE(workers.Kill());
  EXPECT_EQ(Painted(*plan, *page, part), before);
}

TEST_F(Worker, AMissingWorkerIsSaid) {
  WorkerEngine none("/nowhere/tamo-engine");
  draw = std::make_unique<PdfDraw>(files, none);
  EXPECT_EQ(draw->OpenFile(Write("plan.pdf", MakePdf(kThreePages)), ""), kFileOther);
  EXPECT_TRUE(draw->Problem().contains("tamo-engine")) << draw->Problem().toStdString();
  draw.reset();
}

// What the numbers of the next objects are is known by the worker alone; the next worker knows it
// again.
TEST_F(Worker, MarksSavedBeforeItEndedStayBesideThoseSavedAfter) {
  const QString path = Write("plan.pdf", MakePdf(kThreePages));
  draw = std::make_unique<PdfDraw>(files, workers);
  ASSERT_EQ(draw->OpenFile(path, ""), 0) << draw->Problem().toStdString();
  for (int i = 0; i < 5; ++i) {
    draw->DrawLine({10, 10.0 + i}, {100, 10.0 + i});
    ASSERT_EQ(draw->SaveAs(path), 0) << draw->Problem().toStdString();
    ASSERT_TRUE(workers.Kill());
  }
  draw.reset();
  Reopen(path);
  EXPECT_EQ(draw->Marks().size(), 5U);
  ExpectValid(path);
}

// The worker is ended again and again while sheets are turned, measured, counted and saved.
TEST_F(Worker, KilledAtRandomThroughAMeasuredBidNothingIsLost) {
  const QString path = Write("set.pdf", MakePdf(QList<PdfPage>(12, PdfPage{})));
  const QString marked = Path("set-Marked.pdf");
  draw = std::make_unique<PdfDraw>(files, workers);
  std::atomic<bool> over = false;
  std::atomic<int> kills = 0;
  std::thread killer([&] {
    std::minstd_rand random(7);
    while (!over) {
      std::this_thread::sleep_for(std::chrono::milliseconds(1 + random() % 25));
      if (workers.Kill()) ++kills;
    }
  });
  while (draw->OpenFile(path, "") != 0) continue;
  size_t drawn = 0;
  for (int round = 0; round < 60 || (kills < 30 && round < 600); ++round) {
    draw->SetPage(1 + round % 12);
    PlanView view;
    view.page = draw->Page();
    view.width = 800;
    view.height = 600;
    draw->Pictures().Look(view);
    draw->Pictures().WaitForCoarse(200);
    draw->DrawLine({20, 20.0 + round}, {300, 21.0 + round});
    draw->PlaceCircle({50.0 + round / 2.0, 400});
    drawn += 2;
    EXPECT_EQ(draw->Marks().size(), drawn);
    if (round % 3 == 2) draw->SaveAs(marked);
  }
  over = true;
  killer.join();
  ASSERT_EQ(draw->SaveAs(marked), 0) << draw->Problem().toStdString();
  EXPECT_GE(kills, 30);
  draw.reset();
  Reopen(marked);
  EXPECT_EQ(draw->Marks().size(), drawn);
  ExpectValid(marked);
}

// Files that ask for gigabytes: the system gives a worker 512 MB, whatever it reads, and it gets
// along with less. What can't be shown is missing; the plan stays open.
TEST_F(Worker, MemoryStaysWithinItsLimit) {
  const Ran ran =
      Run("python3", {test::SourceFile(QStringLiteral("scripts/make_odd_pdfs.py")), Path("odd")});
  if (!ran.present) GTEST_SKIP() << "python3 is not here";
  for (const char* name : {"odd/jpx_bomb.pdf", "odd/jbig2_bomb.pdf", "odd/deep_bomb.pdf",
                           "odd/lines_bomb.pdf", "odd/scan.pdf", "odd/hatch_once.pdf"}) {
    const auto plan = Open(workers, Path(name));
    CancelFlag cancel;
    Bell bell(cancel, 8000);
    if (const auto page = plan->LoadPage(1, cancel)) {
      std::vector<uint32_t> pixels(1224 * 1584);
      plan->Paint(*page, {2, 0, 0, 0, 1224, 1584, false}, cancel, pixels.data());
    }
    plan->ReadContent(1, cancel);
    if (workers.Process() > 0 && !kSanitized) {  // a sanitizer takes as much again
      EXPECT_LT(StatusOf("VmHWM:").split(' ').value(0).toLongLong(), 512 * 1024) << name;
      EXPECT_LE(MostMemory(), 512 << 20) << name;
    }
    EXPECT_EQ(plan->BuildUpdate({}).error, 0) << name;
  }
}
