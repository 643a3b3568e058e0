// The program from its start to the first frame of its first window, with the first project of its
// list opened when there is one. Arguments: the program folder and a home folder; with a third one
// it stays, and says "ready" in a file of that name. Ends with 3 when another program has the
// project. bench_start.sh runs it beside empty_window.
#include <QFile>

#include "firstframe.h"
#include "startedprogram.h"

int main(int argc, char** argv) {
  tamo::KeepMemory();
  QApplication application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  tamo::ApplyLook(tamo::Look::Of(QApplication::palette()));
  if (argc < 3) return 2;
  tamo::bench::StartedProgram started(QString::fromLocal8Bit(argv[1]),
                                      QString::fromLocal8Bit(argv[2]));
  tamo::Program& program = started.GetProgram();
  tamo::Form& main = *program.FindForm(QStringLiteral("Tamo"));
  auto& jobs = *dynamic_cast<tamo::OrderedList*>(main.Find(QStringLiteral("JobsList")));
  program.GetDesk().ChooseMenu(*main.FindMenu(QStringLiteral("OpenProject")));
  if (!jobs.Empty()) program.GetDesk().ClickRow(jobs, 0);
  if (argc > 3) {
    QFile ready(QString::fromLocal8Bit(argv[3]));
    return ready.open(QIODevice::WriteOnly) ? QApplication::exec() : 2;
  }
  const bool theirs = !program.Shared().ReadOnly.isEmpty();
  const tamo::bench::FirstFrame end(theirs ? 3 : 0);
  return QApplication::exec();
}
