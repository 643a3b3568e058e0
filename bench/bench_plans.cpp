// Plans beside their peers, on a sheet of 200,000 segments and a set of 300 sheets, 60 MB: opening,
// the sharp view, thumbnails (peer: `mutool draw` as a process), and saving one mark (peer: the
// bare append and sync). The plans are made by make_plans.py on the first run.
#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <unistd.h>

#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QThread>
#include <memory>

#include "common/files.h"
#include "engine/mupdfengine.h"
#include "planfiles.h"
#include "plans/pdfdraw.h"
#include "plans/workerengine.h"

namespace {

using namespace tamo;
using bench::PlanPath;

constexpr int kPatience = 60000;
constexpr double kScale = 96.0 / 72.0;

// As the program does it, in a process of its own; with TAMO_PLANS_HERE in this one, to compare.
PlanEngine& Engine() {
  static MuPdfEngine here;
  static WorkerEngine there(TAMO_ENGINE);
  if (qEnvironmentVariableIsSet("TAMO_PLANS_HERE")) return here;
  return there;
}

// A plan window has shown its first page before anybody picks a plan, so a process waits by then.
// Without processes the same pause, for the sake of the processor's own memory.
void WaitForAWorker() {
  QThread::msleep(700);
  const auto* there = dynamic_cast<WorkerEngine*>(&Engine());
  for (int i = 0; i < 100 && there != nullptr && !there->OneWaits(); ++i) QThread::msleep(20);
}

struct Viewer {
  RealDisk disk;
  Files files{disk};
  std::unique_ptr<PdfDraw> draw = std::make_unique<PdfDraw>(files, Engine());
};

PlanView Window(int left, int top) {
  PlanView view;
  view.pixelsPerPoint = kScale;
  view.left = left;
  view.top = top;
  view.width = 1920;
  view.height = 1080;
  return view;
}

// The most memory this process has held so far.
double PeakMegabytes() {
  QFile status(QStringLiteral("/proc/self/status"));
  if (!status.open(QIODevice::ReadOnly)) return 0;
  for (const QByteArray& line : status.readAll().split('\n')) {
    if (line.startsWith("VmHWM:")) return line.mid(6).simplified().split(' ')[0].toDouble() / 1024;
  }
  return 0;
}

void RunMutool(benchmark::State& state, const QStringList& arguments) {
  for (auto _ : state) {
    QProcess mutool;
    mutool.setStandardErrorFile(QProcess::nullDevice());
    mutool.setStandardOutputFile(QProcess::nullDevice());
    mutool.start(QStringLiteral("mutool"), arguments);
    if (!mutool.waitForFinished(kPatience) || mutool.exitCode() != 0) {
      state.SkipWithError("mutool");
    }
  }
}

void OpenToCoarse(benchmark::State& state, const char* plan) {
  const QString path = PlanPath(plan);
  for (auto _ : state) {
    state.PauseTiming();
    WaitForAWorker();
    auto viewer = std::make_unique<Viewer>();
    state.ResumeTiming();
    viewer->draw->OpenFile(path, QString());
    viewer->draw->Pictures().Look(Window(0, 0));
    if (!viewer->draw->Pictures().WaitForCoarse(kPatience))
      state.SkipWithError("no coarse picture");
    state.PauseTiming();
    viewer.reset();
    state.ResumeTiming();
  }
  state.counters["peakMB"] = PeakMegabytes();
}
BENCHMARK_CAPTURE(OpenToCoarse, sheet, "sheet.pdf")
    ->UseRealTime()
    ->Iterations(8)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(OpenToCoarse, set, "set.pdf")
    ->UseRealTime()
    ->Iterations(30)
    ->Unit(benchmark::kMillisecond);

// Each round looks at another part, so nothing is there before.
void SharpView(benchmark::State& state) {
  Viewer viewer;
  viewer.draw->OpenFile(PlanPath("sheet.pdf"), QString());
  viewer.draw->Pictures().Look(Window(0, 0));
  viewer.draw->Pictures().WaitUntilSharp(kPatience);
  int round = 0;
  for (auto _ : state) {
    ++round;
    PlanView view = Window(1000, 1000);
    view.pixelsPerPoint += round * 0.0002;  // another zoom: other tiles
    viewer.draw->Pictures().Look(view);
    if (!viewer.draw->Pictures().WaitUntilSharp(kPatience)) state.SkipWithError("not sharp");
  }
  state.counters["peakMB"] = PeakMegabytes();
}
BENCHMARK(SharpView)->UseRealTime()->Unit(benchmark::kMillisecond);

void SharpViewMutool(benchmark::State& state) {
  RunMutool(state, {QStringLiteral("draw"), QStringLiteral("-r"), QStringLiteral("96"),
                    QStringLiteral("-F"), QStringLiteral("ppm"), QStringLiteral("-o"),
                    QStringLiteral("/dev/null"), PlanPath("clip.pdf"), QStringLiteral("1")});
}
BENCHMARK(SharpViewMutool)->UseRealTime()->Unit(benchmark::kMillisecond);

void Thumbnails(benchmark::State& state) {
  const QString path = PlanPath("set.pdf");
  for (auto _ : state) {
    Viewer viewer;
    viewer.draw->OpenFile(path, QString());
    for (int page = 1; page <= 100; ++page) viewer.draw->Pictures().Thumbnail(page, 160);
    if (!viewer.draw->Pictures().WaitUntilSharp(kPatience)) state.SkipWithError("no thumbnails");
  }
  state.counters["peakMB"] = PeakMegabytes();
}
BENCHMARK(Thumbnails)->UseRealTime()->Unit(benchmark::kMillisecond);

void ThumbnailsMutool(benchmark::State& state) {
  RunMutool(state, {QStringLiteral("draw"), QStringLiteral("-w"), QStringLiteral("160"),
                    QStringLiteral("-h"), QStringLiteral("160"), QStringLiteral("-F"),
                    QStringLiteral("ppm"), QStringLiteral("-o"), QStringLiteral("/dev/null"),
                    PlanPath("set.pdf"), QStringLiteral("1-100")});
}
BENCHMARK(ThumbnailsMutool)->UseRealTime()->Unit(benchmark::kMillisecond);

// The longest that one call holds the window's thread while the user pans and zooms.
void PanAndZoom(benchmark::State& state) {
  Viewer viewer;
  viewer.draw->OpenFile(PlanPath("sheet.pdf"), QString());
  double longest = 0;
  int step = 0;
  for (auto _ : state) {
    PlanView view = Window(step * 37 % 2000, step * 23 % 1500);
    view.pixelsPerPoint = kScale * (1 + step / 40 % 4 * 0.25);
    ++step;
    QElapsedTimer clock;
    clock.start();
    viewer.draw->Pictures().Look(view);
    benchmark::DoNotOptimize(viewer.draw->Pictures().PicturesFor(view));
    longest = std::max(longest, static_cast<double>(clock.nsecsElapsed()) / 1e6);
  }
  state.counters["longest_ms"] = longest;
  state.counters["peakMB"] = PeakMegabytes();
}
BENCHMARK(PanAndZoom)->UseRealTime()->Iterations(2000)->Unit(benchmark::kMillisecond);

// One new mark on a marked copy. The small plan and the large one cost the same.
void SaveOneMark(benchmark::State& state, const char* plan) {
  const QTemporaryDir folder;
  const QString marked = folder.filePath(QStringLiteral("plan-Marked.pdf"));
  Viewer viewer;
  viewer.draw->OpenFile(PlanPath(plan), QString());
  viewer.draw->SaveAs(marked);
  double y = 10;
  for (auto _ : state) {
    y = y > 2000 ? 10 : y + 3;
    viewer.draw->DrawLine({100, y}, {300, y});
    if (viewer.draw->SaveAs(marked) != 0) state.SkipWithError("not saved");
  }
}
BENCHMARK_CAPTURE(SaveOneMark, sheet, "sheet.pdf")
    ->UseRealTime()
    ->Iterations(200)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(SaveOneMark, set, "set.pdf")
    ->UseRealTime()
    ->Iterations(200)
    ->Unit(benchmark::kMillisecond);

void BareAppend(benchmark::State& state) {
  const QTemporaryDir folder;
  const QByteArray path = folder.filePath(QStringLiteral("plan.pdf")).toUtf8();
  QFile::copy(PlanPath("set.pdf"), QString::fromUtf8(path));
  const QByteArray bytes(2048, 'x');
  for (auto _ : state) {
    const int file = open(path.constData(), O_WRONLY | O_APPEND | O_CLOEXEC);
    if (write(file, bytes.constData(), static_cast<size_t>(bytes.size())) < 0) {
      state.SkipWithError("write");
    }
    fdatasync(file);
    close(file);
  }
}
BENCHMARK(BareAppend)->UseRealTime()->Iterations(200)->Unit(benchmark::kMillisecond);

}  // namespace
