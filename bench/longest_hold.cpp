// How long each report over a million takeoff lines holds the window: a clock ticks every
// millisecond in the window's own thread, and the longest silence between two ticks is told, with
// the time of the whole report. Then the Office Copy is scrolled by the thumb, and stopped by
// Escape halfway; last, what it keeps in memory is held against its text. Arguments: the program
// folder, and how many rooms of 20 lines.
#include <unistd.h>

#include <QElapsedTimer>
#include <QKeyEvent>
#include <QProgressDialog>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QTimer>
#include <cstdio>
#include <fstream>

#include "figureline.h"
#include "largebid.h"
#include "startedprogram.h"
#include "threadwork.h"
#include "windows/rowsview.h"

namespace {

using tamo::OrderedList;
using tamo::bench::WorkOfThread;

constexpr double kFrame = 16;  // milliseconds

class Watch {
 public:
  Watch() {
    QObject::connect(&timer_, &QTimer::timeout, [this] {
      longest_ = std::max(longest_, static_cast<double>(silence_.nsecsElapsed()) / 1e6);
      const double work = WorkOfThread();
      longestWork_ = std::max(longestWork_, work - work_);
      work_ = work;
      silence_.restart();
    });
    timer_.setTimerType(Qt::PreciseTimer);
    timer_.start(1);
  }
  void Begin() {
    Settle();
    longest_ = longestWork_ = 0;
    work_ = WorkOfThread();
    silence_.start();
    whole_.start();
  }
  void End(const char* what, int lines) {
    const qint64 made = whole_.elapsed();
    Settle();
    std::printf("%-16s longest silence %6.1f ms, of work %6.1f ms\n", what, longest_, longestWork_);
    tamo::bench::TellFigure("The window stands still: " + std::string(what) + ", " +
                                std::to_string(lines) + " lines in " + std::to_string(made) + " ms",
                            longest_, "a frame", kFrame, 1);
  }

 private:
  // Until everything that was put off is done.
  static void Settle() {
    QElapsedTimer clock;
    for (clock.start(); clock.elapsed() < 300;)
      QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
  }

  QTimer timer_;
  QElapsedTimer silence_;
  QElapsedTimer whole_;
  double longest_ = 0;
  double longestWork_ = 0;  // without what other programs took of the machine meanwhile
  double work_ = 0;
};

// Of this process, in bytes.
double ResidentMemory() {
  double pages = 0;
  std::ifstream("/proc/self/statm") >> pages >> pages;
  return pages * static_cast<double>(sysconf(_SC_PAGESIZE));
}

class Play {
 public:
  explicit Play(tamo::Program& program) : program_(program) {}

  OrderedList* List(const char* form, const char* name) {
    return dynamic_cast<OrderedList*>(
        program_.FindForm(QString::fromLatin1(form))->Find(QString::fromLatin1(name)));
  }
  void Choose(const char* entry) {
    program_.GetDesk().ChooseMenu(
        *program_.FindForm(QStringLiteral("Tamo"))->FindMenu(QString::fromLatin1(entry)));
  }
  void OpenTheProject() {
    Choose("OpenProject");
    program_.GetDesk().ClickRow(*List("Tamo", "JobsList"), 0);
  }
  int Lines() {
    return List("Reports", "Reporter")->Count() + List("Reports", "Reporter1")->Count();
  }

  void EachReport() {
    for (const char* report : {"Quantities", "RecapSheet", "BreakDown", "BillOfMaterial", "fCopy",
                               "oCopy", "Quantities"}) {
      watch_.Begin();
      Choose(report);
      watch_.End(report, Lines());
    }
  }

  // The thumb is dragged over the whole Office Copy and back.
  void Thumb() {
    tamo::RowsView* view = nullptr;
    for (QWidget* widget : QApplication::allWidgets()) {
      auto* rows = qobject_cast<QListView*>(widget);
      if (rows != nullptr && rows->isVisible() && rows->model()->rowCount() == Lines())
        view = static_cast<tamo::RowsView*>(rows);
    }
    if (view == nullptr) return;
    QScrollBar* bar = view->verticalScrollBar();
    watch_.Begin();
    for (int step = -200; step <= 200; ++step) {
      bar->setSliderPosition(static_cast<int>(bar->maximum() / 200.0 * (200 - std::abs(step))));
      QCoreApplication::processEvents();
    }
    watch_.End("thumb", Lines());
  }

  // Escape is pressed a while into the Office Copy, as soon as its bar shows that it is being made.
  void Escape() {
    QElapsedTimer pressed;
    QTimer looks;
    QObject::connect(&looks, &QTimer::timeout, &looks, [&] {
      QWidget* bar = QApplication::activeModalWidget();
      if (bar == nullptr) return;
      looks.stop();
      pressed.start();
      QApplication::postEvent(bar, new QKeyEvent(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier));
    });
    looks.start(10);
    watch_.Begin();
    Choose("oCopy");
    const qint64 answered = pressed.isValid() ? pressed.nsecsElapsed() : -1;
    watch_.End("Escape", Lines());
    if (answered < 0) return;  // it was made before anybody could press
    tamo::bench::TellFigure("Escape stops the Office Copy", static_cast<double>(answered) / 1e6,
                            "a frame", kFrame, 1);
  }

  void Memory() {
    double before = ResidentMemory();
    Choose("oCopy");
    watch_.Begin();
    const double after = ResidentMemory();
    const OrderedList& copy = *List("Reports", "Reporter1");
    double text = 0;
    for (int row = 0; row < copy.Count(); ++row)
      text += static_cast<double>(copy.SharedRows().SizeOf(row));
    tamo::bench::TellFigure("Memory of the Office Copy", (after - before) / 1e6, "its text",
                            text / 1e6, 1.5, "MB");
  }

 private:
  tamo::Program& program_;
  Watch watch_;
};

}  // namespace

int main(int argc, char** argv) {
  tamo::KeepMemory();
  QApplication application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  tamo::ApplyLook(tamo::Look::Of(QApplication::palette()));
  if (argc < 2) {
    std::fprintf(stderr, "longest_hold PROGRAM_FOLDER [ROOMS]\n");
    return 2;
  }
  QTemporaryDir home;
  const int rooms = argc > 2 ? std::atoi(argv[2]) : 50000;
  tamo::bench::WriteDataFolder(std::filesystem::path(home.path().toStdString()) / "Tamo", rooms, 2);
  tamo::bench::StartedProgram started(QString::fromLocal8Bit(argv[1]), home.path());
  Play play(started.GetProgram());
  play.OpenTheProject();
  play.Memory();
  play.EachReport();
  play.Choose("oCopy");
  play.Thumb();
  play.Escape();
  home.remove();
  _Exit(0);
}
