#include <QPainter>

#include "windows/sheetpaint.h"

namespace tamo {

void PaintLikes(QPainter& painter, PdfDraw& viewer, double scale) {
  using Answer = SameSymbols::Answer;
  const SameSymbols& same = viewer.Same();
  if (!same.Asking() || same.Page() != viewer.Page()) return;
  const double pixel = 1 / scale;
  constexpr double kAround = 4;  // pixels
  for (size_t i = 0; i < same.Likes().size(); ++i) {
    const Like& like = same.Likes()[i];
    const bool current = i == same.Current();
    const bool yes = same.Answers()[i] == Answer::Yes;
    const bool no = same.Answers()[i] == Answer::No;
    QRectF box;
    for (const PagePoint at : like.outline) {
      const QRectF corner(at.x, at.y, pixel, pixel);
      box = box.isNull() ? corner : box.united(corner);
    }
    box.adjust(-kAround * pixel, -kAround * pixel, kAround * pixel, kAround * pixel);
    QColor colour = yes ? QColor(0x10, 0x80, 0x30) : QColor(0xb0, 0x70, 0x00);
    if (no) colour = QColor(0x80, 0x80, 0x80);
    if (current) colour = QColor(0xd0, 0x30, 0x00);
    QPen pen(colour, (current ? 3 : 1.5) * pixel);
    if (!like.doubt.isEmpty()) pen.setStyle(Qt::DashLine);
    painter.setPen(pen);
    painter.setBrush(current ? QBrush(QColor(255, 200, 0, 60)) : QBrush(Qt::NoBrush));
    painter.drawRect(box);
  }
}

}  // namespace tamo
