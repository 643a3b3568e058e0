#include <benchmark/benchmark.h>

#include <QByteArray>
#include <QTemporaryDir>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <map>
#include <memory>
#include <random>
#include <string>

#include "common/disk.h"
#include "common/files.h"
#include "common/memory.h"
#include "common/paths.h"
#include "reports/bill.h"
#include "reports/breakdown.h"
#include "reports/copies.h"
#include "reports/quantities.h"
#include "reports/recap.h"

// How long the reports take beside plainly reading the files that they are made from. Compare
// within one run: BM_Recap with BM_PlainReading of the same rooms, and each report at ten times the
// lines.

namespace {

using namespace tamo;

constexpr int kSystems = 150;
constexpr int kLinesOfRoom = 20;

std::string Padded(std::string text, size_t width, bool right) {
  const std::string blanks(width > text.size() ? width - text.size() : 0, ' ');
  return right ? blanks + text : text + blanks;
}

// As takeoffs have them: a few feet to a few thousand, some with a fraction; hardly one twice.
std::string Quantity(int n) {
  static const char* const fractions[] = {"", "", "", ".5", ".25"};
  return std::to_string(8 + n % 2400) + fractions[n / 2400 % 5];
}

std::string SystemName(int n) {
  return "System " + std::to_string(n);
}

// A project in a temporary folder; the same for the same size.
class Project {
 public:
  Project(int rooms, int materials) {
    namespace fs = std::filesystem;
    const fs::path folder(temporary_.path().toStdString());
    for (const char* part : {"Rooms", "Systems", "ATOs"}) fs::create_directories(folder / part);
    for (int s = 0; s < kSystems; ++s) WriteSystem(folder, s, materials);
    std::ofstream list(folder / "Rooms/Rooms.tamo", std::ios::binary);
    std::mt19937 dice(1);
    for (int r = 0; r < rooms; ++r) {
      list << "Room " << r << "\r\nTrue\r\n";
      std::ofstream room(folder / ("Rooms/Room " + std::to_string(r) + ".rfs"), std::ios::binary);
      room << "9\r\n";
      for (int l = 0; l < kLinesOfRoom; ++l) {
        room << Padded(SystemName(static_cast<int>(dice() % kSystems)), 21, false)
             << Padded("WALLS", 11, false)
             << Padded(Quantity(static_cast<int>(dice() % 100000)), 14, true) << " SF\r\n";
      }
    }
    Write(folder / "oItems.tamo", "Mobilization           1850.00\r\n");
    Write(folder / "Adjustment.tamo", "-1250\r\n");
    for (const auto& entry : fs::recursive_directory_iterator(folder)) {
      if (entry.is_regular_file()) paths_ += QString::fromStdString(entry.path().string());
    }
  }

  ReportSource Source() {
    return {files_, temporary_.path() + PlatformSeparator(), PlatformSeparator(), {}, false};
  }
  const QStringList& Paths() const { return paths_; }
  Files& GetFiles() { return files_; }
  RealDisk& GetDisk() { return disk_; }

 private:
  static void Write(const std::filesystem::path& path, const std::string& text) {
    std::ofstream(path, std::ios::binary) << text;
  }

  static void WriteSystem(const std::filesystem::path& folder, int number, int materials) {
    std::ofstream file(folder / ("Systems/" + SystemName(number) + ".sys"), std::ios::binary);
    file << SystemName(number) << "\r\nSF\r\n0.00\r\n255000000\r\n\r\n\x01\r\n\r\n\r\n";
    for (int m = 0; m < materials; ++m) {
      file << "Material " << number % 40 << "-" << m << "\r\nBX\r\n"
           << 12 + m << ".50\r\n32\r\nupo\r\n45\r\nupm\r\n5\r\n41.50\r\n\r\n\r\n\r\n";
    }
  }

  QTemporaryDir temporary_;
  RealDisk disk_;
  Files files_{disk_};
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
      QStringList lines;
      project.GetFiles().ReadLines(path, lines);
      benchmark::DoNotOptimize(lines);
    }
  }
}

template <typename MakeReport>
void Run(benchmark::State& state, MakeReport make) {
  Project& project = ProjectOf(state);
  const ReportSource source = project.Source();
  for (auto _ : state) {
    const Report report = make(source);
    benchmark::DoNotOptimize(report);
  }
  state.counters["lines"] = static_cast<double>(state.range(0)) * kLinesOfRoom;
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
  for (int64_t i = 0; i < state.range(0) * kLinesOfRoom; i += 2) {
    file << "2026/01/01 Takeoff\n    Systems:" << SystemName(static_cast<int>(i) % kSystems)
         << "  $" << 8 + i % 2400 << ".25\n    Rooms:" << i / kLinesOfRoom << "\n\n";
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
BENCHMARK(BM_Quantities)->TAMO_REPORT;
BENCHMARK(BM_BreakDown)->TAMO_REPORT;
BENCHMARK(BM_BillofMaterial)->TAMO_REPORT;
BENCHMARK(BM_FieldCopy)->TAMO_COPY;
BENCHMARK(BM_OfficeCopy)->TAMO_COPY;
BENCHMARK(BM_LedgerBal)->TAMO_REPORT->UseRealTime();

}  // namespace
