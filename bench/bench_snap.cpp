// The snap to the drawing on a sheet of 200,000 segments: how long its lines are read aside, and
// the answer to a move of the pointer, whose slowest of all is told beside its mean. bench_plans
// makes the sheet on its first run. Worst: as many lines through one place.
#include <benchmark/benchmark.h>

#include <chrono>
#include <cmath>
#include <memory>
#include <random>

#include "common/files.h"
#include "planfiles.h"
#include "plans/pdfdraw.h"
#include "plans/workerengine.h"
#include "timesof.h"

namespace {

using namespace tamo;
using Clock = std::chrono::steady_clock;

double Milliseconds(Clock::time_point since) {
  return std::chrono::duration<double, std::milli>(Clock::now() - since).count();
}

struct Viewer {
  RealDisk disk;
  Files files{disk};
  WorkerEngine engine{TAMO_ENGINE};
  std::unique_ptr<PdfDraw> draw = std::make_unique<PdfDraw>(files, engine);
  Viewer() {
    draw->OpenFile(bench::PlanPath("sheet.pdf"), QString());
    draw->PickTool(PlanTool::Measuring);
  }
};

void TellWorst(benchmark::State& state, const std::vector<double>& times) {
  state.counters["p99_ms"] = bench::Part(times, .99);
  state.counters["worst_ms"] = bench::Part(times, 1);
}

void ReadTheLines(benchmark::State& state) {
  for (auto _ : state) {
    state.PauseTiming();
    Viewer viewer;
    state.ResumeTiming();
    viewer.draw->Snap().Follow();
    viewer.draw->Snap().Lines().Wait(60000);
    state.counters["lines"] = double(viewer.draw->Snap().Lines().Index()->Lines());
    state.PauseTiming();
    viewer.draw.reset();
    state.ResumeTiming();
  }
}
BENCHMARK(ReadTheLines)->UseRealTime()->Unit(benchmark::kMillisecond);

// At 20, 100 and 400 per cent: the smaller the sheet, the more lines are within reach.
void AnswerToAMove(benchmark::State& state) {
  Viewer viewer;
  viewer.draw->SetZoom(static_cast<int>(state.range(0)));
  viewer.draw->Snap().Follow();
  viewer.draw->Snap().Lines().Wait(60000);
  const PageSize size = viewer.draw->SizeOfPage(1);
  std::mt19937 random(5);
  std::uniform_real_distribution<double> part(0, 1);
  std::vector<double> times;
  for (auto _ : state) {
    const PagePoint at = {part(random) * size.width, part(random) * size.height};
    const auto start = Clock::now();
    benchmark::DoNotOptimize(viewer.draw->Snap().Point(at, false));
    times.push_back(Milliseconds(start));
  }
  TellWorst(state, times);
}
BENCHMARK(AnswerToAMove)->Arg(20)->Arg(100)->Arg(400)->Unit(benchmark::kMicrosecond);

void WorstOfAll(benchmark::State& state) {
  std::mt19937 random(5);
  std::uniform_real_distribution<double> angle(0, 6.28);
  std::vector<SnapLine> lines;
  for (int i = 0; i < 200000; ++i) {
    const double turn = angle(random);
    lines.push_back({{{1000, 1000}, {1000 + 30 * std::cos(turn), 1000 + 30 * std::sin(turn)}}});
  }
  const SnapIndex index(std::move(lines));
  std::vector<double> times;
  for (auto _ : state) {
    const auto start = Clock::now();
    benchmark::DoNotOptimize(index.Near({1004, 1001}, 10, PagePoint{900, 950}));
    times.push_back(Milliseconds(start));
  }
  TellWorst(state, times);
}
BENCHMARK(WorstOfAll)->Unit(benchmark::kMicrosecond);

}  // namespace
