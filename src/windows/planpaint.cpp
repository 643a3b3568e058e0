#include "windows/planpaint.h"

#include <QFontMetricsF>
#include <QPainter>
#include <numbers>

#include "plans/marklegend.h"
#include "plans/markshape.h"
#include "windows/look.h"
#include "windows/swatchpatch.h"

namespace tamo {

QImage ImageOf(const Picture& picture) {
  return QImage(reinterpret_cast<const uchar*>(picture.pixels.data()), picture.width,
                picture.height, picture.width * 4, QImage::Format_RGB32);
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

void PaintHandles(QPainter& painter, const Mark& mark, int point, double scale) {
  constexpr size_t kMostHandles = 400;  // more would cover the mark
  const QColor colour = CurrentLook().accent.darker(110);
  const double half = 4.5 / scale;
  const size_t each = mark.points.size() / kMostHandles + 1;
  painter.setPen(QPen(colour, 1.5 / scale));
  for (size_t i = 0; i < mark.points.size(); ++i) {
    const bool inHand = static_cast<int>(i) == point;
    if (!inHand && i % each != 0) continue;
    const QPointF at(mark.points[i].x, mark.points[i].y);
    painter.setBrush(inHand ? colour : QColor(Qt::white));
    painter.drawRect(QRectF(at - QPointF(half, half), at + QPointF(half, half)));
  }
}

namespace {

// Upright letters of a width that is the same in every reader; the painter works in points.
void PaintText(QPainter& painter, const QString& text, double width, double size) {
  // Fonts have sizes of whole pixels; a hundred of them are fine enough for any place.
  constexpr int kFine = 100;
  QFont font(QStringLiteral("Helvetica"));
  font.setStyleHint(QFont::SansSerif);
  font.setPixelSize(kFine);
  const double wide = QFontMetricsF(font).horizontalAdvance(text);
  if (wide <= 0) return;
  painter.scale(width / wide, size / kFine);
  painter.setFont(font);
  painter.drawText(QPointF(0, 0), text);
}

void PaintLegend(QPainter& painter, const Mark& mark) {
  const LegendShape shape = ShapeOfLegend(mark);
  painter.setPen(QPen(ColourOf(mark.colour), 0.75));
  painter.setBrush(Qt::white);
  painter.drawRect(QRectF(shape.at.x, shape.at.y, shape.width, shape.height));
  painter.drawLine(QPointF(shape.at.x, shape.underHead),
                   QPointF(shape.at.x + shape.width, shape.underHead));
  for (const LegendShape::Patch& patch : shape.patches)
    painter.fillRect(QRectF(patch.at.x, patch.at.y, kLegendPatch, kLegendPatch),
                     QColor::fromRgb(patch.colour));
  for (const LegendShape::Text& text : shape.texts) {
    painter.save();
    painter.setPen(QColor::fromRgb(text.colour));
    painter.translate(text.at.x, text.at.y);
    PaintText(painter, text.text, text.width, kLegendLetters);
    painter.restore();
  }
}

}  // namespace

void PaintMark(QPainter& painter, const Mark& mark, double markerSize) {
  if (mark.kind == Mark::Kind::Legend) return PaintLegend(painter, mark);
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
  painter.save();
  painter.translate(shape.textAt.x, shape.textAt.y);
  painter.rotate(shape.textAngle * 180 / std::numbers::pi);
  painter.translate(-shape.textWidth / 2, 0);
  painter.setPen(QColor::fromRgb(ReadableOnWhite(ColourNumber(mark.colour))));
  PaintText(painter, shape.text, shape.textWidth, shape.textSize);
  painter.restore();
}

}  // namespace tamo
