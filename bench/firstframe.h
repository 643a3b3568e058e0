#pragma once

#include <QApplication>
#include <QEvent>
#include <QTimer>

namespace tamo::bench {

// Ends the program when its first frame stands.
class FirstFrame : public QObject {
 public:
  FirstFrame() { qApp->installEventFilter(this); }

 protected:
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::Paint && !painted_) {
      painted_ = true;
      QTimer::singleShot(0, qApp, &QApplication::quit);
    }
    return false;
  }

 private:
  bool painted_ = false;
};

}  // namespace tamo::bench
