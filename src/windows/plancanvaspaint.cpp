#include <QPainter>
#include <QTimer>

#include "windows/look.h"
#include "windows/plancanvas.h"
#include "windows/planpaint.h"
#include "windows/sheetpaint.h"

// What the plan's window shows: the pictures of the sheet, the marks, what is in work, the cross
// hair.

namespace tamo {

void PlanCanvas::paintEvent(QPaintEvent*) {
  QPainter painter(viewport());
  const Look& look = CurrentLook();
  painter.fillRect(viewport()->rect(), look.dark ? look.base : look.faintLine);
  const SheetInWindow sheet = Sheet();
  const QPointF corner = sheet.Corner();
  const double scale = sheet.Scale();
  painter.fillRect(QRectF(corner, sheet.Page() * scale), Qt::white);
  if (pictures_ != nullptr) {
    const double ratio = devicePixelRatioF();
    // The window has come to a finer or coarser screen.
    if (ratio != lookedRatio_) QTimer::singleShot(0, this, [this] { ViewChanged(); });
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    for (const PlacedPicture& placed : pictures_->PicturesFor(sheet.View(ratio))) {
      const QRectF target(corner.x() + placed.left / ratio, corner.y() + placed.top / ratio,
                          placed.width / ratio, placed.height / ratio);
      painter.drawImage(target, ImageOf(*placed.picture));
    }
  }
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setTransform(sheet.ToWindow(), true);
  PaintMarks(painter, viewer_);
  PaintChosen(painter, viewer_, scale);
  if (foundOn) PaintFound(painter, foundOn(viewer_.Page()), scale);
  PaintChanged(painter, viewer_, scale);
  PaintLikes(painter, viewer_, scale);
  PaintWork(painter, viewer_, scale);
  if (hasFocus()) PaintCrossHair(painter, viewer_, scale);
  painter.restore();
  if (hasFocus()) {
    painter.setPen(QPen(look.accent, 2));
    painter.drawRect(viewport()->rect().adjusted(1, 1, -1, -1));
  }
}

}  // namespace tamo
