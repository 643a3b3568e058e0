// A sheet of 36 by 48 inches and 200,000 segments with its former state laid over, beside the plain
// sheet: from the choice of the other plan to the first overlay in a window of 1920 by 1080, and to
// the sharp one; the longest that panning holds the window; how long it takes until the sheets are
// aligned and every changed place is known. The plans are made by make_plans.py and
// make_revisions.py on the first run.
#include <benchmark/benchmark.h>

#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QThread>
#include <chrono>
#include <memory>

#include "common/files.h"
#include "plans/comparison.h"
#include "plans/pdfdraw.h"
#include "plans/workerengine.h"
#include "timesof.h"

namespace {

using namespace tamo;
using Clock = std::chrono::steady_clock;

constexpr int kPatience = 60000;
constexpr double kScale = 96.0 / 72.0;

QString PlanPath(const char* name, const char* script) {
  const QString folder = QDir::tempPath() + QStringLiteral("/tamo-bench-plans");
  const QString path = folder + QLatin1Char('/') + QLatin1String(name);
  if (!QFileInfo::exists(path)) {
    const QString maker = QStringLiteral(TAMO_SOURCE_DIR "/bench/") + QLatin1String(script);
    QProcess::execute(QStringLiteral("python3"), {maker, folder});
  }
  return path;
}

QString Sheet() {
  return PlanPath("sheet.pdf", "make_plans.py");
}
QString Before() {
  return PlanPath("sheet-before.pdf", "make_revisions.py");
}

double Milliseconds(Clock::time_point since) {
  return std::chrono::duration<double, std::milli>(Clock::now() - since).count();
}

PlanView Window(int left, int top) {
  PlanView view;
  view.pixelsPerPoint = kScale;
  view.left = left;
  view.top = top;
  view.width = 1920;
  view.height = 1080;
  return view;
}

struct Viewer {
  RealDisk disk;
  Files files{disk};
  WorkerEngine engine{TAMO_ENGINE};
  std::unique_ptr<PdfDraw> draw = std::make_unique<PdfDraw>(files, engine);
  // The sheet is in sight, and a worker waits for the next plan.
  Viewer() {
    draw->onPageChanged = [this] { draw->Compared().Follow(); };
    draw->OpenFile(Sheet(), QString());
    draw->Pictures().Look(Window(0, 0));
    draw->Pictures().WaitUntilSharp(kPatience);
    for (int i = 0; i < 200 && !engine.OneWaits(); ++i) QThread::msleep(20);
  }
};

// The window's loop, until the overlay is there.
bool WaitForOverlay(Viewer& viewer, bool sharp) {
  const auto start = Clock::now();
  while (Milliseconds(start) < kPatience) {
    viewer.draw->Compared().Jobs().Settle(0);  // takes the news that is there
    const bool shows = viewer.draw->Compared().Shows(1);
    if (shows && (sharp ? viewer.draw->Pictures().WaitUntilSharp(5)
                        : viewer.draw->Pictures().WaitForCoarse(5)))
      return true;
    if (!shows) QThread::msleep(1);
  }
  return false;
}

void PlainOpening(benchmark::State& state) {
  for (auto _ : state) {
    state.PauseTiming();
    auto viewer = std::make_unique<Viewer>();
    state.ResumeTiming();
    viewer->draw->OpenFile(Before(), QString());
    viewer->draw->Pictures().Look(Window(0, 0));
    viewer->draw->Pictures().WaitForCoarse(kPatience);
    state.PauseTiming();
    viewer.reset();
    state.ResumeTiming();
  }
}
BENCHMARK(PlainOpening)->UseRealTime()->Iterations(5)->Unit(benchmark::kMillisecond);

void Overlay(benchmark::State& state, bool sharp) {
  for (auto _ : state) {
    state.PauseTiming();
    auto viewer = std::make_unique<Viewer>();
    state.ResumeTiming();
    viewer->draw->Compared().Begin(Before(), QString());
    if (!WaitForOverlay(*viewer, sharp)) state.SkipWithError("no overlay");
    state.PauseTiming();
    viewer.reset();
    state.ResumeTiming();
  }
}
BENCHMARK_CAPTURE(Overlay, first, false)
    ->UseRealTime()
    ->Iterations(5)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Overlay, sharp, true)
    ->UseRealTime()
    ->Iterations(5)
    ->Unit(benchmark::kMillisecond);

void EveryChange(benchmark::State& state) {
  for (auto _ : state) {
    state.PauseTiming();
    auto viewer = std::make_unique<Viewer>();
    state.ResumeTiming();
    viewer->draw->Compared().Begin(Before(), QString());
    viewer->draw->Compared().Jobs().Settle(kPatience);
    const SheetsCompared* known = viewer->draw->Compared().Known();
    if (known == nullptr || !known->looked) state.SkipWithError("not compared");
    state.counters["places"] = known == nullptr ? 0 : double(known->places.size());
    state.counters["agreed"] = known == nullptr ? 0 : known->alignment.agreed;
    state.PauseTiming();
    viewer.reset();
    state.ResumeTiming();
  }
}
BENCHMARK(EveryChange)->UseRealTime()->Iterations(3)->Unit(benchmark::kMillisecond);

// The longest that one call holds the window's thread while the user pans, plain and laid over.
void Pan(benchmark::State& state, bool overlay) {
  Viewer viewer;
  if (overlay) {
    viewer.draw->Compared().Begin(Before(), QString());
    viewer.draw->Compared().Jobs().Settle(kPatience);
  }
  std::vector<double> times;
  int step = 0;
  for (auto _ : state) {
    const PlanView view = Window(step * 37 % 2000, step * 23 % 1500);
    ++step;
    const auto start = Clock::now();
    viewer.draw->Pictures().Look(view);
    benchmark::DoNotOptimize(viewer.draw->Pictures().PicturesFor(view));
    times.push_back(Milliseconds(start));
  }
  state.counters["p99_ms"] = bench::Part(times, .99);
  state.counters["worst_ms"] = bench::Part(times, 1);
}
BENCHMARK_CAPTURE(Pan, plain, false)
    ->UseRealTime()
    ->Iterations(2000)
    ->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(Pan, overlay, true)
    ->UseRealTime()
    ->Iterations(2000)
    ->Unit(benchmark::kMicrosecond);

// A view that was never looked at, until it is sharp.
void SharpView(benchmark::State& state, bool overlay) {
  Viewer viewer;
  if (overlay) {
    viewer.draw->Compared().Begin(Before(), QString());
    viewer.draw->Compared().Jobs().Settle(kPatience);
  }
  int round = 0;
  for (auto _ : state) {
    PlanView view = Window(1000, 1000);
    view.pixelsPerPoint += ++round * 0.0002;
    viewer.draw->Pictures().Look(view);
    if (!viewer.draw->Pictures().WaitUntilSharp(kPatience)) state.SkipWithError("not sharp");
  }
}
BENCHMARK_CAPTURE(SharpView, plain, false)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(SharpView, overlay, true)->UseRealTime()->Unit(benchmark::kMillisecond);

}  // namespace
