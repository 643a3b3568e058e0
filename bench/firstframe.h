#pragma once

#include <QApplication>
#include <QEvent>
#include <QTimer>
#include <cstdlib>

namespace tamo::bench {

// Ends the program at once, with `status`, when its first frame stands: what it would do on leaving
// is no part of its start.
class FirstFrame : public QObject {
 public:
  explicit FirstFrame(int status = 0) : status_(status) { qApp->installEventFilter(this); }

 protected:
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::Paint && !painted_) {
      painted_ = true;
      QTimer::singleShot(0, qApp, [status = status_] { std::_Exit(status); });
    }
    return false;
  }

 private:
  const int status_;
  bool painted_ = false;
};

}  // namespace tamo::bench
