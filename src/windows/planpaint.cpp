#include "windows/planpaint.h"

#include <QPainter>
#include <QPainterPath>
#include <cmath>
#include <numbers>

#include "windows/swatchpatch.h"

namespace tamo {

QImage ImageOf(const Picture& picture) {
  return QImage(reinterpret_cast<const uchar*>(picture.pixels.data()), picture.width,
                picture.height, picture.width * 4, QImage::Format_RGB32);
}

QTransform PageTransform(PageSize page, int turn, double scale) {
  QTransform transform;
  switch (turn) {
    case 90:
      transform = QTransform(0, 1, -1, 0, page.height, 0);
      break;
    case 180:
      transform = QTransform(-1, 0, 0, -1, page.width, page.height);
      break;
    case 270:
      transform = QTransform(0, -1, 1, 0, 0, page.width);
      break;
    default:
      break;
  }
  return transform * QTransform::fromScale(scale, scale);
}

void PaintMark(QPainter& painter, const Mark& mark, double markerSize) {
  const QColor colour = ColourOf(mark.colour);
  painter.setPen(QPen(colour.isValid() ? colour : QColor(Qt::red), mark.width));
  painter.setBrush(Qt::NoBrush);
  if (mark.kind == Mark::Kind::Circle && !mark.points.empty()) {
    painter.drawEllipse(QPointF(mark.points[0].x, mark.points[0].y), markerSize / 2,
                        markerSize / 2);
  } else if (mark.points.size() > 1) {
    painter.drawLine(QPointF(mark.points[0].x, mark.points[0].y),
                     QPointF(mark.points[1].x, mark.points[1].y));
  }
}

}  // namespace tamo
