// The program from its start to the first frame of its first window, with the first project of its
// list opened when there is one. Arguments: the program folder and a home folder. bench_start.sh
// runs it beside empty_window.
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
  const tamo::bench::FirstFrame end;
  return QApplication::exec();
}
