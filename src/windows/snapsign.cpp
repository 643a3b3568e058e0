#include <QPainter>
#include <QPainterPath>

#include "windows/look.h"
#include "windows/planpaint.h"

namespace tamo {
namespace {

constexpr double kArm = 6;  // pixels

QPainterPath SignOf(SnapKind kind) {
  QPainterPath sign;
  switch (kind) {
    case SnapKind::End:
      sign.addRect(-kArm, -kArm, 2 * kArm, 2 * kArm);
      break;
    case SnapKind::Intersection:
      sign.moveTo(-kArm, -kArm);
      sign.lineTo(kArm, kArm);
      sign.moveTo(-kArm, kArm);
      sign.lineTo(kArm, -kArm);
      break;
    case SnapKind::Middle:
      sign.addPolygon(QPolygonF({{-kArm, kArm}, {kArm, kArm}, {0, -kArm}, {-kArm, kArm}}));
      break;
    case SnapKind::Foot:
      sign.moveTo(-kArm, -kArm);
      sign.lineTo(-kArm, kArm);
      sign.lineTo(kArm, kArm);
      break;
    case SnapKind::Nearest:
      sign.addPolygon(QPolygonF({{0, -kArm}, {kArm, 0}, {0, kArm}, {-kArm, 0}, {0, -kArm}}));
      break;
  }
  return sign;
}

}  // namespace

void PaintSnapSign(QPainter& painter, const SnapHit& hit, double scale) {
  const QColor colour = CurrentLook().accent.darker(110);
  painter.save();
  painter.translate(hit.at.x, hit.at.y);
  painter.scale(1 / scale, 1 / scale);
  // Upright however the sheet is turned.
  const QTransform turned = painter.transform();
  painter.setTransform(QTransform::fromTranslate(turned.dx(), turned.dy()));
  painter.setPen(QPen(colour, 2));
  painter.setBrush(Qt::NoBrush);
  painter.drawPath(SignOf(hit.kind));
  const QString word = SnapInWords(hit.kind);
  QRectF box = painter.fontMetrics().boundingRect(word);
  box.moveTopLeft({2 * kArm, kArm});
  painter.fillRect(box.adjusted(-3, -1, 3, 1), QColor(255, 255, 255, 220));
  painter.drawText(box, Qt::AlignCenter, word);
  painter.restore();
}

}  // namespace tamo
