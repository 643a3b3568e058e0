// The program from its start to its first visible window, then it ends. Arguments: the program
// folder and a home folder. bench_start.sh runs it beside empty_window.
#include <QTimer>

#include "startedprogram.h"

int main(int argc, char** argv) {
  tamo::KeepMemory();
  QApplication application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  tamo::ApplyLook(tamo::Look::Of(QApplication::palette()));
  tamo::bench::StartedProgram started(QString::fromLocal8Bit(argv[1]),
                                      QString::fromLocal8Bit(argv[2]));
  QTimer::singleShot(0, &application, &QApplication::quit);
  return QApplication::exec();
}
