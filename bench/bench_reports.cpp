#include <benchmark/benchmark.h>

#include <QByteArray>
#include <QTemporaryDir>
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <map>
#include <memory>
#include <string>
#include <thread>

#include "common/disk.h"
#include "common/files.h"
#include "common/memory.h"
#include "common/paths.h"
#include "common/textlines.h"
#include "largebid.h"
#include "reports/bill.h"
#include "reports/breakdown.h"
#include "reports/copies.h"
#include "reports/quantities.h"
#include "reports/recap.h"
#include "reports/reportmemory.h"

// How long the reports take beside plainly reading the files that they are made from. Compare
// within one run: BM_Recap with BM_PlainReading of the same rooms, and each report at ten times the
// lines.

namespace {

using namespace tamo;

// A project in a temporary folder; the same for the same size.
class Project {
 public:
  Project(int rooms, int materials) {
    namespace fs = std::filesystem;
    const fs::path folder(temporary_.path().toStdString());
    bench::WriteProject(folder, rooms, materials);
    // A bid's files were not written just now, and such are not remembered.
    std::this_thread::sleep_for(std::chrono::milliseconds(3200));
    for (const auto& entry : fs::recursive_directory_iterator(folder)) {
      if (entry.is_regular_file()) paths_ += QString::fromStdString(entry.path().string());
    }
  }

  // `files` has read none of them before, or all.
  ReportSource Source(Files& files) {
    return {files, {temporary_.path() + PlatformSeparator(), PlatformSeparator()}, {}, false};
  }
  const QStringList& Paths() const { return paths_; }
  RealDisk& GetDisk() { return disk_; }

 private:
  QTemporaryDir temporary_;
  RealDisk disk_;
  QStringList paths_;
};

// As the program has it from its start.
[[maybe_unused]] const bool kMemoryIsKept = [] {
  KeepMemory();
  return true;
}();

Project& ProjectOf(const benchmark::State& state) {
  static std::map<std::pair<int64_t, int64_t>, std::unique_ptr<Project>> projects;
  std::unique_ptr<Project>& project = projects[{state.range(0), state.range(1)}];
  if (!project)
    project = std::make_unique<Project>(static_cast<int>(state.range(0)),
                                        static_cast<int>(state.range(1)));
  return *project;
}

Markups BenchMarkups() {
  Markups texts;
  texts.LOH = texts.MOH = texts.BLOH = QStringLiteral(".08");
  texts.LMU = texts.MMU = texts.BLMU = QStringLiteral(".10");
  texts.LTX = texts.MTX = texts.MIOH = QStringLiteral(".0725");
  return texts;
}

void BM_PlainBytes(benchmark::State& state) {
  Project& project = ProjectOf(state);
  for (auto _ : state) {
    for (const QString& path : project.Paths()) {
      QByteArray bytes;
      project.GetDisk().Read(path, bytes);
      benchmark::DoNotOptimize(bytes);
    }
  }
}

void BM_PlainReading(benchmark::State& state) {
  Project& project = ProjectOf(state);
  for (auto _ : state) {
    for (const QString& path : project.Paths()) {
      QByteArray bytes;
      project.GetDisk().Read(path, bytes);
      const QStringList lines = WholeLines(DecodedText(bytes));
      benchmark::DoNotOptimize(lines);
    }
  }
}

// Each time by a program that has read nothing yet.
template <typename MakeReport>
void Run(benchmark::State& state, MakeReport make) {
  Project& project = ProjectOf(state);
  for (auto _ : state) {
    Files files(project.GetDisk());
    const Report report = make(project.Source(files));
    benchmark::DoNotOptimize(report);
  }
  state.counters["lines"] = static_cast<double>(state.range(0)) * bench::kLinesOfRoom;
}

// The same report once more, as the automatic refresh makes it.
void BM_RecapAnew(benchmark::State& state) {
  Project& project = ProjectOf(state);
  Files files(project.GetDisk());
  ReportMemory memory;
  ReportSource source = project.Source(files);
  source.memory = &memory;
  QString adjustment;
  for (auto _ : state) {
    const Report report = MinimalRecapSheet(source, BenchMarkups(), false, adjustment);
    benchmark::DoNotOptimize(report);
  }
}

void BM_Recap(benchmark::State& state) {
  QString adjustment;
  Run(state, [&](const ReportSource& source) {
    return MinimalRecapSheet(source, BenchMarkups(), false, adjustment);
  });
}
void BM_Quantities(benchmark::State& state) {
  Run(state, [](const ReportSource& source) { return Quantities(source); });
}
void BM_BreakDown(benchmark::State& state) {
  QString adjustment;
  Run(state, [&](const ReportSource& source) {
    return BreakDown(MakeBreak(source, BenchMarkups(), adjustment));
  });
}
void BM_BillofMaterial(benchmark::State& state) {
  Run(state, [](const ReportSource& source) { return BillofMaterial(source); });
}
void BM_FieldCopy(benchmark::State& state) {
  Run(state, [](const ReportSource& source) { return FieldCopy(source); });
}
void BM_OfficeCopy(benchmark::State& state) {
  Run(state, [](const ReportSource& source) { return OfficeCopy(source, BenchMarkups()); });
}

// The peer: `ledger bal` on a journal of as many postings, the start of its process included.
void BM_LedgerBal(benchmark::State& state) {
  if (std::system("ledger --version > /dev/null 2>&1") != 0) {
    state.SkipWithError("ledger is not installed");
    return;
  }
  const QTemporaryDir folder;
  const std::string journal = folder.path().toStdString() + "/journal";
  std::ofstream file(journal);
  for (int64_t i = 0; i < state.range(0) * bench::kLinesOfRoom; i += 2) {
    file << "2026/01/01 Takeoff\n    Systems:"
         << bench::SystemName(static_cast<int>(i) % bench::kSystems) << "  $" << 8 + i % 2400
         << ".25\n    Rooms:" << i / bench::kLinesOfRoom << "\n\n";
  }
  file.close();
  const std::string command = "ledger -f " + journal + " bal > /dev/null";
  for (auto _ : state) {
    if (std::system(command.c_str()) != 0) state.SkipWithError("ledger failed");
  }
}

// {rooms of 20 lines, materials of a system}. The recap's own pair is 1,000 and 10,000 rooms with 5
// materials; each report at 10,000 and 100,000 lines is 500 and 5,000 rooms with 2 materials, which
// is the mean of a real bid. The copies print two lines for each material of each takeoff line.
#define TAMO_REPORT Args({500, 2})->Args({5000, 2})->Unit(benchmark::kMillisecond)
#define TAMO_RECAP Args({1000, 5})->Args({10000, 5})->TAMO_REPORT
#define TAMO_COPY Args({500, 5})->TAMO_REPORT
BENCHMARK(BM_PlainBytes)->TAMO_RECAP;
BENCHMARK(BM_PlainReading)->Args({500, 5})->TAMO_RECAP;
BENCHMARK(BM_Recap)->TAMO_RECAP;
BENCHMARK(BM_RecapAnew)->Args({1000, 5})->Unit(benchmark::kMillisecond);
BENCHMARK(BM_Quantities)->TAMO_REPORT;
BENCHMARK(BM_BreakDown)->TAMO_REPORT;
BENCHMARK(BM_BillofMaterial)->TAMO_REPORT;
BENCHMARK(BM_FieldCopy)->TAMO_COPY;
BENCHMARK(BM_OfficeCopy)->TAMO_COPY;
BENCHMARK(BM_LedgerBal)->TAMO_REPORT->UseRealTime();

}  // namespace
