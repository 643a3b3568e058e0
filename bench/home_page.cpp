// What the home page costs the one who types: an Enter in the takeoff of 1,000 rooms and 20,000
// lines with the page in sight and without it, taking turns, and how long after an Enter the page
// has its figures. Arguments: the program folder and how many Enters.
#include <QTemporaryDir>
#include <QThread>
#include <cstdio>
#include <cstdlib>
#include <vector>

#include "largebid.h"
#include "startedprogram.h"
#include "takeoffplay.h"
#include "timesof.h"

using namespace tamo;

namespace {

struct Side {
  explicit Side(const QString& programFolder) : started(Folder(), programFolder, home.path()) {}
  struct Written {
    Written(const std::filesystem::path& data, const QString& folder, const QString& home)
        : program((bench::WriteDataFolder(data, 1000, 5), folder), home) {}
    bench::StartedProgram program;
  };
  std::filesystem::path Folder() const {
    return std::filesystem::path(home.path().toStdString()) / "Tamo";
  }
  QTemporaryDir home;
  Written started;
  bench::TakeoffPlay play{started.program.GetProgram()};
  std::vector<double> enters;
  std::vector<double> settled;

  void Enter() {
    QElapsedTimer clock;
    clock.start();
    enters.push_back(play.Enter());
    QCoreApplication::processEvents();
    settled.push_back(static_cast<double>(clock.nsecsElapsed()) / 1e6);
  }
};

}  // namespace

int main(int argc, char** argv) {
  KeepMemory();
  QApplication application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  ApplyLook(Look::Of(QApplication::palette()));
  if (argc < 2) {
    std::fprintf(stderr, "home_page PROGRAM_FOLDER [ENTERS]\n");
    return 2;
  }
  const int count = argc > 2 ? std::atoi(argv[2]) : 200;
  Side with(QString::fromLocal8Bit(argv[1]));
  Side without(QString::fromLocal8Bit(argv[1]));
  QThread::sleep(4);  // the files of a real bid were not written just now
  Program& program = with.started.program.GetProgram();
  program.BeginHomePage();
  with.play.Begin(false);
  without.play.Begin(false);
  std::vector<double> shown;
  const auto enterWith = [&] {
    QElapsedTimer since;
    since.start();
    with.Enter();
    while (!program.HomePageIsUpToDate()) {
      QCoreApplication::processEvents();
      QThread::usleep(200);
    }
    shown.push_back(static_cast<double>(since.nsecsElapsed()) / 1e6 - with.enters.back());
  };
  for (int i = 0; i < count; ++i) {
    // Each comes after a rest: nobody types faster.
    QThread::msleep(30);
    i % 2 == 0 ? without.Enter() : enterWith();
    QThread::msleep(30);
    i % 2 == 0 ? enterWith() : without.Enter();
  }
  bench::Tell("Enter with the page", with.enters);
  bench::Tell("Enter without it", without.enters);
  bench::Tell("settled with the page", with.settled);
  bench::Tell("settled without it", without.settled);
  bench::Tell("figures after an Enter", shown);
  std::fflush(stdout);
  with.home.remove();
  without.home.remove();
  _Exit(0);
}
