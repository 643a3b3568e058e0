// What a day of work leaves in memory: hours of Enters with the report that follows them, of
// reports of every kind and of plan pages that are turned and looked at, each hour like the other.
// The program and the process that reads its plan are told after each; the last is held against the
// first. Arguments: the program folder, and how many Enters the day has; a hundredth of them are
// reports and half of that pages. TMPDIR in memory spares the device.
#include <unistd.h>

#include <QElapsedTimer>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include "figureline.h"
#include "planfiles.h"
#include "playprogram.h"
#include "takeoffplay.h"

namespace {

using namespace tamo;

constexpr int kHours = 8;
constexpr int kEntriesOfLine = 20;
// Enters: what is painted leaves nothing, and takes longer than all the rest.
constexpr int kBetweenPaintings = 10;

double ResidentOf(const std::string& process) {
  double pages = 0;
  std::ifstream("/proc/" + process + "/statm") >> pages >> pages;
  return pages * static_cast<double>(sysconf(_SC_PAGESIZE)) / 1e6;
}

// Megabytes of the program, and of the processes that it has begun.
struct Memory {
  double program = ResidentOf("self");
  double workers = 0;
  Memory() {
    for (const auto& task : std::filesystem::directory_iterator("/proc/self/task")) {
      std::ifstream children(task.path() / "children");
      for (std::string child; children >> child;) workers += ResidentOf(child);
    }
  }
  double Sum() const { return program + workers; }
};

class Day {
 public:
  explicit Day(Program& program) : program_(program), play_(program) { play_.Begin(); }

  void OpenPlan() {
    program_.OpenPlan(bench::PlanPath("set.pdf"));
    Look();
  }

  void WorkAnHour(int enters) {
    static constexpr const char* kReports[] = {"Quantities", "BreakDown", "BillOfMaterial",
                                               "fCopy",      "oCopy",     "RecapSheet"};
    for (int i = 1; i <= enters; ++i) {
      if (i % kEntriesOfLine == 0) play_.NextLine();
      play_.Enter();
      if (i % 100 == 0) play_.Choose(kReports[++reports_ % std::size(kReports)]);
      if (i % 200 == 0) TurnPage();
      if (i % kBetweenPaintings == 0) QCoreApplication::processEvents();
    }
  }

 private:
  void TurnPage() {
    PdfDraw& viewer = program_.Viewer();
    page_ = page_ % viewer.PageCount() + 1;
    program_.GetDesk().Dispatch([&] { viewer.TurnPage(page_); });
    Look();
  }

  // Until the sheet is there in full.
  void Look() {
    QElapsedTimer clock;
    for (clock.start(); clock.elapsed() < 5000 && !program_.Viewer().Pictures().WaitUntilSharp(0);)
      QCoreApplication::processEvents(QEventLoop::AllEvents, 5);
  }

  Program& program_;
  bench::TakeoffPlay play_;
  size_t reports_ = 0;
  int page_ = 1;
};

}  // namespace

int main(int argc, char** argv) {
  return bench::PlayProgram(argc, argv, {20, 2}, 100'000, [](Program& program, int enters) {
    Day day(program);
    day.OpenPlan();
    double first = 0;
    double last = 0;
    for (int hour = 1; hour <= kHours; ++hour) {
      day.WorkAnHour(enters / kHours);
      const Memory memory;
      last = memory.Sum();
      if (hour == 1) first = last;
      std::printf("hour %d: %.1f MB, of it %.1f MB for the plan\n", hour, last, memory.workers);
      std::fflush(stdout);
    }
    bench::TellFigure("Memory after a day of " + std::to_string(enters) + " Enters, " +
                          std::to_string(enters / 100) + " reports and " +
                          std::to_string(enters / 200) + " plan pages",
                      last, "after its first hour", first, 1.1, "MB");
  });
}
