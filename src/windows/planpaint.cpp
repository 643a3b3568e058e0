#include "windows/planpaint.h"

#include <QFontMetricsF>
#include <QPainter>
#include <numbers>

#include "plans/markshape.h"
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

namespace {

void PaintWay(QPainter& painter, const MarkShape& shape, QColor colour) {
  QPolygonF way;
  for (const PagePoint at : shape.way) way << QPointF(at.x, at.y);
  QPen pen(colour, shape.width);
  pen.setJoinStyle(Qt::RoundJoin);
  if (shape.dashed) pen.setDashPattern({kMarkDash / shape.width, kMarkDash / shape.width});
  painter.setPen(pen);
  if (!shape.closed) return painter.drawPolyline(way);
  colour.setAlphaF(kMarkFill);
  painter.setBrush(shape.filled ? QBrush(colour) : QBrush(Qt::NoBrush));
  painter.drawPolygon(way);
}

}  // namespace

void PaintMark(QPainter& painter, const Mark& mark, double markerSize) {
  const MarkShape shape = ShapeOf(mark, markerSize);
  const QColor known = ColourOf(mark.colour);
  const QColor colour = known.isValid() ? known : QColor(Qt::black);
  painter.setPen(QPen(colour, shape.width));
  painter.setBrush(Qt::NoBrush);
  for (const MarkShape::Stroke& stroke : shape.strokes)
    painter.drawLine(QPointF(stroke.from.x, stroke.from.y), QPointF(stroke.to.x, stroke.to.y));
  if (!shape.way.empty()) PaintWay(painter, shape, colour);
  if (shape.circle)
    painter.drawEllipse(QPointF(shape.centre.x, shape.centre.y), shape.radius, shape.radius);
  if (shape.text.isEmpty()) return;
  // Fonts have sizes of whole pixels; a hundred of them are fine enough for any place.
  constexpr int kFine = 100;
  QFont font(QStringLiteral("Helvetica"));
  font.setStyleHint(QFont::SansSerif);
  font.setPixelSize(kFine);
  const double wide = QFontMetricsF(font).horizontalAdvance(shape.text);
  if (wide <= 0) return;
  painter.save();
  painter.translate(shape.textAt.x, shape.textAt.y);
  painter.rotate(shape.textAngle * 180 / std::numbers::pi);
  painter.scale(shape.textWidth / wide, shape.textSize / kFine);
  painter.setFont(font);
  painter.setPen(QColor::fromRgb(ReadableOnWhite(ColourNumber(mark.colour))));
  painter.drawText(QPointF(-wide / 2, 0), shape.text);
  painter.restore();
}

}  // namespace tamo
