// The program from its start to the first frame of its first window, with the first project of its
// list opened when there is one. Arguments: the program folder and a home folder; with a third one
// it stays, and says "ready" in a file of that name; when that is a PDF, it is opened, too, and how
// long after the first frame its coarse picture is on the screen is printed, in milliseconds. Ends
// with 3 when another program has the project. bench_start.sh runs it beside empty_window.
#include <QElapsedTimer>
#include <QFile>
#include <cstdio>

#include "firstframe.h"
#include "startedprogram.h"
#include "windows/fontsahead.h"

namespace {

// Notes when something is painted first.
class Painted : public QObject {
 public:
  Painted() { qApp->installEventFilter(this); }
  QElapsedTimer since;

 protected:
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::Paint && !since.isValid()) since.start();
    return false;
  }
};

int TellOfPlan(tamo::Program& program, const QString& plan) {
  const Painted first;
  QElapsedTimer waited;
  waited.start();
  program.OpenPlan(plan);
  tamo::PdfDraw& viewer = program.Viewer();
  while (!first.since.isValid() || !viewer.Pictures().WaitForCoarse(0) || viewer.PageCount() < 2) {
    QApplication::processEvents(QEventLoop::AllEvents, 1);
    if (waited.elapsed() > 10'000) return 4;
  }
  QApplication::processEvents();
  std::printf("%.2f\n", static_cast<double>(first.since.nsecsElapsed()) / 1e6);
  std::fflush(stdout);
  std::_Exit(0);
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 3) return 2;
  tamo::KeepMemory();
  tamo::FontsAhead fonts;
  QApplication application(argc, argv);
  fonts.GoOn();
  QApplication::setQuitOnLastWindowClosed(false);
  tamo::ApplyLook(tamo::Look::Of(QApplication::palette()));
  tamo::bench::StartedProgram started(QString::fromLocal8Bit(argv[1]),
                                      QString::fromLocal8Bit(argv[2]), [&fonts] { fonts.Wait(); });
  tamo::Program& program = started.GetProgram();
  tamo::Form& main = *program.FindForm(QStringLiteral("Tamo"));
  auto& jobs = *dynamic_cast<tamo::OrderedList*>(main.Find(QStringLiteral("JobsList")));
  program.BeginHomePage();
  program.GetDesk().ChooseMenu(*main.FindMenu(QStringLiteral("OpenProject")));
  if (!jobs.Empty()) program.GetDesk().ClickRow(jobs, 0);
  const QString more = argc > 3 ? QString::fromLocal8Bit(argv[3]) : QString();
  if (more.endsWith(QLatin1String(".pdf"))) return TellOfPlan(program, more);
  if (!more.isEmpty()) {
    QFile ready(more);
    return ready.open(QIODevice::WriteOnly) ? QApplication::exec() : 2;
  }
  const bool theirs = !program.Shared().ReadOnly.isEmpty();
  const tamo::bench::FirstFrame end(theirs ? 3 : 0);
  return QApplication::exec();
}
