// What a day of work leaves in memory: eight hours of Enters with the report that follows them, of
// reports of every kind and of plan pages that are turned, looked at closely, measured on, compared
// and looked through, each hour like the other. The program and the process that reads its plan are
// told after each hour, with the most that they ever had; the last hour is held against the first.
// Arguments: the program folder, how many Enters the day has, of which a hundredth are reports, and
// how many plan pages it has. TMPDIR in memory spares the device.
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <iterator>
#include <memory>
#include <string>

#include "figureline.h"
#include "planplay.h"
#include "playprogram.h"
#include "processmemory.h"
#include "takeoffplay.h"

namespace {

using namespace tamo;

constexpr int kHours = 8;
constexpr int kWholeDay = 100'000;  // Enters
constexpr int kPages = 500;
constexpr int kEntriesOfLine = 20;
// Enters: what is painted leaves nothing, and takes longer than all the rest.
constexpr int kBetweenPaintings = 10;

class Day {
 public:
  explicit Day(Program& program) : play_(program), plans_(program) {
    play_.Begin();
    program.BeginHomePage();
    plans_.Open();
  }

  void WorkAnHour(int enters, int pages) {
    static constexpr const char* kReports[] = {"Quantities", "BreakDown", "BillOfMaterial",
                                               "fCopy",      "oCopy",     "RecapSheet"};
    for (int i = 1; i <= enters; ++i) {
      if (i % kEntriesOfLine == 0) play_.NextLine();
      play_.Enter();
      if (i % 100 == 0) play_.Choose(kReports[++reports_ % std::size(kReports)]);
      if (i % std::max(1, enters / pages) == 0) plans_.Turn();
      if (i % kBetweenPaintings == 0) QCoreApplication::processEvents();
    }
  }
  int Reports() const { return static_cast<int>(reports_); }
  int Pages() const { return plans_.Turned(); }

 private:
  bench::TakeoffPlay play_;
  bench::PlanPlay plans_;
  size_t reports_ = 0;
};

void TellHour(int hour, const bench::DayMemory& memory) {
  const auto& [program, workers, count] = memory;
  std::printf(
      "hour %d: program %.1f MB (at most %.1f), %d threads, %d files; %zu for plans %.1f MB "
      "(at most %.1f)\n",
      hour, program.now, program.peak, program.threads, program.files, count, workers.now,
      workers.peak);
  std::fflush(stdout);
}

void TellDay(const Day& day, int enters, const bench::DayMemory& first,
             const bench::DayMemory& last) {
  const std::string part = enters < kWholeDay ? "a shortened day" : "a day";
  const std::string work = ", after " + part + " of " + std::to_string(enters) + " Enters, " +
                           std::to_string(day.Reports()) + " reports and " +
                           std::to_string(day.Pages()) + " plan pages";
  bench::TellFigure("Memory of the program" + work, last.program.now, "after its first eighth",
                    first.program.now, 1.1, "MB");
  bench::TellFigure("Memory of what reads the plans" + work, last.workers.now,
                    "after its first eighth", first.workers.now, 1.1, "MB");
}

}  // namespace

int main(int argc, char** argv) {
  const int pages = argc > 3 ? std::atoi(argv[3]) : kPages;
  return bench::PlayProgram(argc, argv, {20, 2}, kWholeDay, [pages](Program& program, int enters) {
    Day day(program);
    std::unique_ptr<bench::DayMemory> first;
    for (int hour = 1; hour <= kHours; ++hour) {
      day.WorkAnHour(enters / kHours, std::max(1, pages / kHours));
      const bench::DayMemory memory;
      if (first == nullptr) first = std::make_unique<bench::DayMemory>(memory);
      TellHour(hour, memory);
      if (hour == kHours) TellDay(day, enters, *first, memory);
    }
  });
}
