#include <QPainter>
#include <QTimer>

#include "plans/comparison.h"
#include "windows/look.h"
#include "windows/plancanvas.h"
#include "windows/planpaint.h"

// What the plan's window shows: the pictures of the sheet, the marks, what is in work, the cross
// hair.

namespace tamo {

void PlanCanvas::paintEvent(QPaintEvent*) {
  QPainter painter(viewport());
  const Look& look = CurrentLook();
  painter.fillRect(viewport()->rect(), look.dark ? look.base : look.faintLine);
  const QPointF origin = Origin();
  const QSizeF page = TurnedPage() * Scale();
  painter.fillRect(QRectF(origin, page), Qt::white);
  if (pictures_ != nullptr) {
    const PlanView view = View();
    const double ratio = devicePixelRatioF();
    // The window has come to a finer or coarser screen.
    if (ratio != lookedRatio_) QTimer::singleShot(0, this, [this] { ViewChanged(); });
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    for (const PlacedPicture& placed : pictures_->PicturesFor(view)) {
      const QRectF target(origin.x() + placed.left / ratio, origin.y() + placed.top / ratio,
                          placed.width / ratio, placed.height / ratio);
      painter.drawImage(target, ImageOf(*placed.picture));
    }
  }
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setTransform(PageTransform(viewer_.SizeOfPage(viewer_.Page()), Turn(), Scale()) *
                           QTransform::fromTranslate(origin.x(), origin.y()),
                       true);
  PaintMarks(painter);
  PaintChosen(painter);
  if (foundOn) PaintFound(painter);
  PaintChanged(painter);
  PaintLikes(painter);
  PaintWork(painter);
  painter.restore();
  if (hasFocus()) {
    painter.setPen(QPen(look.accent, 2));
    painter.drawRect(viewport()->rect().adjusted(1, 1, -1, -1));
  }
}

// Frames that leave the text readable; the one in hand is thick and has a ground.
void PlanCanvas::PaintFound(QPainter& painter) const {
  const double pixel = 1 / Scale();
  for (const FoundBox& found : foundOn(viewer_.Page())) {
    const QRectF box(QPointF(found.box.left, found.box.top),
                     QPointF(found.box.right, found.box.bottom));
    const QColor colour = found.walked ? QColor(0xd0, 0x30, 0x00) : QColor(0xb0, 0x70, 0x00);
    painter.setPen(QPen(colour, (found.walked ? 3 : 1.5) * pixel));
    painter.setBrush(found.walked ? QColor(255, 200, 0, 70) : QColor(255, 220, 80, 40));
    painter.drawRect(box.adjusted(-2 * pixel, -2 * pixel, 2 * pixel, 2 * pixel));
  }
}

// What differs from the sheet laid under this one; the place in hand is thick.
void PlanCanvas::PaintChanged(QPainter& painter) const {
  const Comparison& compared = viewer_.Compared();
  const SheetsCompared* known = compared.On() ? compared.Known() : nullptr;
  if (known == nullptr || known->page != viewer_.Page()) return;
  const double pixel = 1 / Scale();
  painter.setBrush(Qt::NoBrush);
  for (size_t i = 0; i < known->places.size(); ++i) {
    const bool walked = compared.Place() == static_cast<int>(i);
    const PageBox& box = known->places[i].box;
    painter.setPen(QPen(QColor(0x20, 0x50, 0xd0), (walked ? 3.5 : 1.2) * pixel));
    const double by = 4 * pixel;
    painter.drawRect(QRectF(QPointF(box.left, box.top), QPointF(box.right, box.bottom))
                         .adjusted(-by, -by, by, by));
  }
}

void PlanCanvas::PaintMarks(QPainter& painter) const {
  for (const Mark& mark : viewer_.MarksAsDrawn()) {
    if (mark.page == viewer_.Page()) PaintMark(painter, mark, viewer_.MarkerSize());
  }
  for (const Mark& total : viewer_.Totals()) {
    if (total.page == viewer_.Page()) PaintMark(painter, total, viewer_.MarkerSize());
  }
}

// The mark as it is being moved, with a handle at each of its points; the one in hand is full.
void PlanCanvas::PaintChosen(QPainter& painter) const {
  const MarkHand& hand = viewer_.Hand();
  for (const Mark& mark : viewer_.MarksAsDrawn()) {
    if (mark.page == viewer_.Page() && hand.Shown().contains(mark.name))
      PaintHandles(painter, mark, -1, Scale());
  }
  const Mark* chosen = hand.Held() ? &*hand.Held() : hand.Chosen();
  if (chosen == nullptr || chosen->page != viewer_.Page()) return;
  if (hand.Holds()) PaintMark(painter, *chosen, viewer_.MarkerSize());
  PaintHandles(painter, *chosen, hand.Point(), Scale());
}

void PlanCanvas::PaintWork(QPainter& painter) const {
  const LineInWork& line = viewer_.LineWork();
  if (line.active && line.page == viewer_.Page()) {
    Mark mark;
    mark.points = {line.from, line.to};
    mark.page = line.page;
    mark.colour = viewer_.MarkColour();
    mark.width = viewer_.MarkWidth();
    mark.label = line.text;
    PaintMark(painter, mark, viewer_.MarkerSize());
  }
  if (const std::optional<Mark> outline = viewer_.OutlineInWork())
    PaintMark(painter, *outline, viewer_.MarkerSize());
  const std::optional<DrawnBox>& box = viewer_.Box().Drawn();
  if (box.has_value() && box->page == viewer_.Page()) {
    painter.setPen(QPen(CurrentLook().accent.darker(110), 2 / Scale(), Qt::DashLine));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(QRectF(QPointF(box->place.left, box->place.top),
                            QPointF(box->place.right, box->place.bottom)));
  }
  const bool pointing = viewer_.Tool() != PlanTool::None || viewer_.Box().Asked() ||
                        viewer_.PointNext() || viewer_.Hand().Holds();
  if (!pointing || !hasFocus()) return;
  const PagePoint hair = viewer_.CrossHair();
  if (const std::optional<SnapHit> sign = viewer_.Snap().Sign())
    PaintSnapSign(painter, *sign, Scale());
  const double arm = 9 / Scale();
  painter.setPen(QPen(CurrentLook().accent.darker(110), 1.4 / Scale()));
  painter.drawLine(QPointF(hair.x - arm, hair.y), QPointF(hair.x + arm, hair.y));
  painter.drawLine(QPointF(hair.x, hair.y - arm), QPointF(hair.x, hair.y + arm));
}

}  // namespace tamo
