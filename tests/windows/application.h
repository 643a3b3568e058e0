#pragma once

#include <QApplication>
#include <QCoreApplication>

namespace tamo::test {

// The one application of a test program, on the platform without a screen.
inline QApplication& Application() {
  static int count = 1;
  static char name[] = "test_windows";
  static char* arguments[] = {name, nullptr};
  static QApplication* application = [] {
    if (!qgetenv("QT_QPA_PLATFORM").startsWith("offscreen:"))
      qputenv("QT_QPA_PLATFORM", "offscreen");
    auto* made = new QApplication(count, arguments);
    QApplication::setQuitOnLastWindowClosed(false);
    return made;
  }();
  return *application;
}

// The first base of a fixture that has widgets as members.
struct WithApplication {
  WithApplication() { Application(); }
};

inline void Settle() {
  for (int i = 0; i < 4; ++i) {
    QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
    QCoreApplication::sendPostedEvents();
  }
}

}  // namespace tamo::test
