// What a day of work leaves in memory: hours of Enters with the report that follows them, and of
// reports of every kind, each hour like the other. Told after each; the last is held against the
// first. Arguments: the program folder, and how many Enters an hour has; a hundredth of them are
// reports.
#include <unistd.h>

#include <cstdio>
#include <fstream>
#include <iterator>

#include "figureline.h"
#include "playprogram.h"
#include "takeoffplay.h"

namespace {

using namespace tamo;

constexpr int kHours = 8;

double ResidentMegabytes() {
  double pages = 0;
  std::ifstream("/proc/self/statm") >> pages >> pages;
  return pages * static_cast<double>(sysconf(_SC_PAGESIZE)) / 1e6;
}

void WorkAnHour(bench::TakeoffPlay& play, int enters) {
  static constexpr const char* kReports[] = {"Quantities", "BreakDown", "BillOfMaterial",
                                             "fCopy",      "oCopy",     "RecapSheet"};
  for (int i = 1; i <= enters; ++i) {
    play.Enter();
    if (i % 100 == 0) play.Choose(kReports[static_cast<size_t>(i / 100) % std::size(kReports)]);
    QCoreApplication::processEvents();
  }
}

}  // namespace

int main(int argc, char** argv) {
  return bench::PlayProgram(argc, argv, {300, 2}, 1200, [](Program& program, int enters) {
    bench::TakeoffPlay play(program);
    play.Begin();
    double first = 0;
    double last = 0;
    for (int hour = 1; hour <= kHours; ++hour) {
      WorkAnHour(play, enters);
      last = ResidentMegabytes();
      if (hour == 1) first = last;
      std::printf("hour %d: %.1f MB\n", hour, last);
      std::fflush(stdout);
    }
    bench::TellFigure("Memory after a day of " + std::to_string(kHours * enters) + " Enters and " +
                          std::to_string(kHours * enters / 100) + " reports",
                      last, "after its first hour", first, 1.1, "MB");
  });
}
