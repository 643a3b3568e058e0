// The least that a Qt program can do: show an empty main window and end with its first frame. With
// an argument the window shows that word: then the toolkit looks for the fonts of the machine, too.
// The peer of bench_start.sh.
#include <QLabel>
#include <QMainWindow>

#include "firstframe.h"

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  QMainWindow window;
  if (argc > 1) window.setCentralWidget(new QLabel(QString::fromLocal8Bit(argv[1])));
  const tamo::bench::FirstFrame end;
  window.show();
  return QApplication::exec();
}
