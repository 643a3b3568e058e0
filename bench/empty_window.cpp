// The least that a Qt program can do: show an empty main window and end with its first frame. The
// peer of bench_start.sh.
#include <QMainWindow>

#include "firstframe.h"

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  QMainWindow window;
  const tamo::bench::FirstFrame end;
  window.show();
  return QApplication::exec();
}
