#pragma once

#include <QWidget>

#include "windows/plancanvas.h"

namespace tamo {

// A round glass over the plan that shows what is under the pointer, or around the cross hair while
// keys move it, three times as large. It paints what the plan paints there: the sharp tiles, the
// marks and the line in work. The key O takes it and puts it away.
class PlanLoupe : public QWidget {
 public:
  // A child of the canvas, which owns it.
  PlanLoupe(PlanCanvas& canvas, PdfDraw& viewer);
  void Toggle();

 protected:
  bool eventFilter(QObject* object, QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  void Follow(const QPointF& place);
  void FollowCrossHair();

  PlanCanvas& canvas_;
  PdfDraw& viewer_;
  QPointF place_;  // in the viewport, that is shown in its middle
};

}  // namespace tamo
