// Why the files of a report are read ahead, and how far: 1,000 room files that the program has not
// read before, with a little work on each text, on one thread and on two; and once more, when they
// are remembered.
#include <benchmark/benchmark.h>

#include <QTemporaryDir>
#include <filesystem>

#include "common/files.h"
#include "common/textsahead.h"
#include "largebid.h"

namespace {

using namespace tamo;

class Rooms {
 public:
  Rooms() { bench::WriteProject(std::filesystem::path(folder_.path().toStdString()), 1000, 2); }

  static Rooms& Get() {
    static Rooms rooms;
    return rooms;
  }
  QString Path(qsizetype at) const {
    return folder_.path() + QStringLiteral("/Rooms/Room %1.rfs").arg(at);
  }
  RealDisk disk;

 private:
  QTemporaryDir folder_;
};

// What a report does with a text, more or less.
int Work(const QString& text) {
  int digits = 0;
  for (const QChar c : text) digits = digits * 7 + c.unicode();
  return digits;
}

void Read(benchmark::State& state, Files& files, qsizetype count, const ReadingPace& pace) {
  Rooms& rooms = Rooms::Get();
  TextsAhead texts(
      files, count, [&rooms](qsizetype at) { return rooms.Path(at); }, pace);
  QString text;
  for (qsizetype i = 0; i < count; ++i) {
    if (texts.Next(text) != 0) state.SkipWithError("not read");
    benchmark::DoNotOptimize(Work(text));
  }
}

// {files, lead, glances, ahead}; lead 0 stands for no thread.
void BM_Pace(benchmark::State& state) {
  ReadingPace pace;
  pace.lead = static_cast<size_t>(state.range(1));
  pace.glances = static_cast<int>(state.range(2));
  pace.ahead = static_cast<size_t>(state.range(3));
  pace.fewest = state.range(1) == 0 ? state.range(0) + 1 : 1;
  for (auto _ : state) {
    Files files(Rooms::Get().disk);
    Read(state, files, static_cast<qsizetype>(state.range(0)), pace);
  }
}
void BM_PlainTexts(benchmark::State& state) {
  for (auto _ : state) {
    Files files(Rooms::Get().disk);
    Read(state, files, 1000, {4, 100, 64, 1001});
  }
}
void BM_TextsAhead(benchmark::State& state) {
  for (auto _ : state) {
    Files files(Rooms::Get().disk);
    Read(state, files, 1000, {});
  }
}
void BM_TextsRemembered(benchmark::State& state) {
  Files files(Rooms::Get().disk);
  for (auto _ : state) Read(state, files, 1000, {});
}

BENCHMARK(BM_PlainTexts)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK(BM_TextsAhead)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK(BM_TextsRemembered)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK(BM_Pace)
    ->ArgNames({"files", "lead", "glances", "ahead"})
    ->Args({1000, 4, 100, 64})
    ->Args({1000, 1, 100, 64})
    ->Args({1000, 16, 100, 64})
    ->Args({1000, 4, 0, 64})
    ->Args({1000, 4, 1000, 64})
    ->Args({1000, 4, 100, 8})
    ->Args({1000, 4, 100, 512})
    ->Args({12, 4, 100, 64})
    ->Args({12, 0, 100, 64})
    ->Args({24, 4, 100, 64})
    ->Args({24, 0, 100, 64})
    ->Args({48, 4, 100, 64})
    ->Args({48, 0, 100, 64})
    ->UseRealTime()
    ->Unit(benchmark::kMicrosecond);

}  // namespace
