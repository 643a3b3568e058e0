// The least that a Qt program can do: show an empty main window and end. The peer of
// bench_start.sh.
#include <QApplication>
#include <QMainWindow>
#include <QTimer>

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  QMainWindow window;
  window.show();
  QTimer::singleShot(0, &application, &QApplication::quit);
  return QApplication::exec();
}
