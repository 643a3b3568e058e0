#include "windows/scrolled.h"

#include <QApplication>
#include <QScrollArea>
#include <QScrollBar>
#include <algorithm>

namespace tamo {
namespace {

class ScrolledArea : public QScrollArea {
 public:
  ScrolledArea(QWidget* inner, int leastHeight) {
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus);
    setWidgetResizable(true);
    setMinimumHeight(leastHeight);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setWidget(inner);
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) {
      if (now != nullptr && widget()->isAncestorOf(now)) ensureWidgetVisible(now, 0, 8);
    });
  }
  QSize minimumSizeHint() const override { return {Width(), minimumHeight()}; }
  QSize sizeHint() const override { return {Width(), widget()->sizeHint().height()}; }

 private:
  int Width() const {
    return std::max(widget()->minimumSizeHint().width(), widget()->minimumWidth()) +
           verticalScrollBar()->sizeHint().width();
  }
};

}  // namespace

QWidget* Scrolled(QWidget* inner, int leastHeight) {
  return new ScrolledArea(inner, leastHeight);
}

}  // namespace tamo
