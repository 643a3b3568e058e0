// How long plans hold the window: each PDF of a folder is opened in the plan's window, its sheets
// are turned, zoomed, marked and saved, while a clock ticks every millisecond in the window's own
// thread. The longest silence between two ticks is told for each, and what of it was work.
// Arguments: the program folder, and folders of PDFs. Widgets are painted meanwhile; that counts,
// too.
#include <QDir>
#include <QElapsedTimer>
#include <QTemporaryDir>
#include <QTimer>
#include <cstdio>

#include "startedprogram.h"
#include "threadwork.h"

namespace {

using tamo::bench::WorkOfThread;

class Watch {
 public:
  Watch() {
    QObject::connect(&timer_, &QTimer::timeout, [this] {
      const double silent = static_cast<double>(silence_.nsecsElapsed()) / 1e6;
      const double work = WorkOfThread();
      if (silent > longest_) where_ = doing_;
      longest_ = std::max(longest_, silent);
      longestWork_ = std::max(longestWork_, work - work_);
      work_ = work;
      silence_.restart();
    });
    timer_.setTimerType(Qt::PreciseTimer);
    timer_.start(1);
  }
  void Begin() {
    Settle(100);
    longest_ = longestWork_ = 0;
    work_ = WorkOfThread();
    silence_.start();
  }
  void Doing(const char* what) {
    Settle(30);
    doing_ = what;
  }
  static void Settle(int milliseconds) {
    QElapsedTimer clock;
    for (clock.start(); clock.elapsed() < milliseconds;)
      QCoreApplication::processEvents(QEventLoop::AllEvents, 5);
  }
  double Longest() const { return longest_; }
  void Tell(const QString& name) const {
    std::printf("%-34s longest silence %6.1f ms (%s), of work %6.1f ms\n", qPrintable(name),
                longest_, where_, longestWork_);
    std::fflush(stdout);
  }

 private:
  QTimer timer_;
  QElapsedTimer silence_;
  double longest_ = 0;
  double longestWork_ = 0;
  double work_ = 0;
  const char* doing_ = "";
  const char* where_ = "";
};

void UntilSharp(tamo::PdfDraw& viewer) {
  QElapsedTimer clock;
  for (clock.start(); clock.elapsed() < 4000 && !viewer.Pictures().WaitUntilSharp(0);)
    Watch::Settle(10);
}

void LookAt(tamo::Program& program, const QString& path, const QString& copy, Watch& watch) {
  tamo::PdfDraw& viewer = program.Viewer();
  watch.Doing("opening");
  program.OpenPlan(path);
  UntilSharp(viewer);
  watch.Doing("turning");
  for (int page = 2; page <= std::min(4, viewer.PageCount()); ++page) {
    program.GetDesk().Dispatch([&] { viewer.TurnPage(page); });
    Watch::Settle(60);
  }
  UntilSharp(viewer);
  watch.Doing("zooming");
  for (const int zoom : {60, 140, 300, 100}) {
    program.GetDesk().Dispatch([&] { viewer.SetZoom(zoom); });
    Watch::Settle(40);
  }
  UntilSharp(viewer);
  watch.Doing("marking");
  program.GetDesk().Dispatch([&] { viewer.DrawLine({30, 30}, {200, 60}); });
  watch.Doing("saving");
  for (int i = 0; i < 2; ++i) {
    program.GetDesk().Dispatch([&] {
      viewer.PlaceCircle({50.0 + 20 * i, 80});
      viewer.SaveAs(copy);
    });
  }
  watch.Doing("waiting");
}

}  // namespace

int main(int argc, char** argv) {
  tamo::KeepMemory();
  QApplication application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  tamo::ApplyLook(tamo::Look::Of(QApplication::palette()));
  if (argc < 3) {
    std::fprintf(stderr, "plan_hold PROGRAM_FOLDER FOLDER...\n");
    return 2;
  }
  QTemporaryDir home;
  tamo::bench::StartedProgram started(QString::fromLocal8Bit(argv[1]), home.path());
  started.GetProgram().Viewer().Patience().Set(6);
  Watch watch;
  double longest = 0;
  int count = 0;
  for (int i = 2; i < argc; ++i) {
    const QDir folder(QString::fromLocal8Bit(argv[i]));
    for (const QString& name : folder.entryList({QStringLiteral("*.pdf")}, QDir::Files)) {
      watch.Begin();
      LookAt(started.GetProgram(), folder.filePath(name), home.filePath(name), watch);
      watch.Tell(name);
      longest = std::max(longest, watch.Longest());
      ++count;
    }
  }
  std::printf("%d plans, longest silence %.1f ms\n", count, longest);
  std::fflush(stdout);
  home.remove();
  _Exit(0);
}
