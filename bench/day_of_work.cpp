// What a day of work leaves in memory: hours of Enters with the report that follows them, and of
// reports of every kind, each hour like the other. Told after each; the last is held against the
// first. Arguments: the program folder, and how many Enters an hour has; a hundredth of them are
// reports.
#include <unistd.h>

#include <QTemporaryDir>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iterator>

#include "largebid.h"
#include "startedprogram.h"
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
  KeepMemory();
  QApplication application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  ApplyLook(Look::Of(QApplication::palette()));
  if (argc < 2) {
    std::fprintf(stderr, "day_of_work PROGRAM_FOLDER [ENTERS_AN_HOUR]\n");
    return 2;
  }
  const int enters = argc > 2 ? std::atoi(argv[2]) : 1200;
  QTemporaryDir home;
  bench::WriteDataFolder(std::filesystem::path(home.path().toStdString()) / "Tamo", 300, 2);
  bench::StartedProgram started(QString::fromLocal8Bit(argv[1]), home.path());
  bench::TakeoffPlay play(started.GetProgram());
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
  std::printf("day of %d Enters: %.1f MB after %.1f MB, %.2f times\n", kHours * enters, last, first,
              last / first);
  std::fflush(stdout);
  home.remove();
  _Exit(0);
}
