#include "windows/sheetpaint.h"

#include <QPainter>
#include <optional>

#include "plans/comparison.h"
#include "windows/look.h"
#include "windows/planpaint.h"

namespace tamo {
namespace {

QRectF RectOf(const PageBox& box) {
  return {QPointF(box.left, box.top), QPointF(box.right, box.bottom)};
}

}  // namespace

void PaintMarks(QPainter& painter, const PdfDraw& viewer) {
  for (const Mark& mark : viewer.MarksAsDrawn()) {
    if (mark.page == viewer.Page()) PaintMark(painter, mark, viewer.MarkerSize());
  }
  for (const Mark& total : viewer.Totals()) {
    if (total.page == viewer.Page()) PaintMark(painter, total, viewer.MarkerSize());
  }
}

void PaintChosen(QPainter& painter, const PdfDraw& viewer, double scale) {
  const MarkHand& hand = viewer.Hand();
  for (const Mark& mark : viewer.MarksAsDrawn()) {
    if (mark.page == viewer.Page() && hand.Shown().contains(mark.name))
      PaintHandles(painter, mark, -1, scale);
  }
  const Mark* chosen = hand.Held() ? &*hand.Held() : hand.Chosen();
  if (chosen == nullptr || chosen->page != viewer.Page()) return;
  if (hand.Holds()) PaintMark(painter, *chosen, viewer.MarkerSize());
  PaintHandles(painter, *chosen, hand.Point(), scale);
}

void PaintFound(QPainter& painter, const std::vector<FoundBox>& boxes, double scale) {
  const double pixel = 1 / scale;
  for (const FoundBox& found : boxes) {
    const QRectF box = RectOf(found.box);
    const QColor colour = found.walked ? QColor(0xd0, 0x30, 0x00) : QColor(0xb0, 0x70, 0x00);
    painter.setPen(QPen(colour, (found.walked ? 3 : 1.5) * pixel));
    painter.setBrush(found.walked ? QColor(255, 200, 0, 70) : QColor(255, 220, 80, 40));
    painter.drawRect(box.adjusted(-2 * pixel, -2 * pixel, 2 * pixel, 2 * pixel));
  }
}

void PaintChanged(QPainter& painter, const PdfDraw& viewer, double scale) {
  const Comparison& compared = viewer.Compared();
  const SheetsCompared* known = compared.On() ? compared.Known() : nullptr;
  if (known == nullptr || known->page != viewer.Page()) return;
  const double pixel = 1 / scale;
  painter.setBrush(Qt::NoBrush);
  for (size_t i = 0; i < known->places.size(); ++i) {
    const bool walked = compared.Place() == static_cast<int>(i);
    painter.setPen(QPen(QColor(0x20, 0x50, 0xd0), (walked ? 3.5 : 1.2) * pixel));
    const double by = 4 * pixel;
    painter.drawRect(RectOf(known->places[i].box).adjusted(-by, -by, by, by));
  }
}

void PaintWork(QPainter& painter, const PdfDraw& viewer, double scale) {
  const LineInWork& line = viewer.LineWork();
  if (line.active && line.page == viewer.Page()) {
    Mark mark;
    mark.points = {line.from, line.to};
    mark.page = line.page;
    mark.colour = viewer.MarkColour();
    mark.width = viewer.MarkWidth();
    mark.label = line.text;
    PaintMark(painter, mark, viewer.MarkerSize());
  }
  if (const std::optional<Mark> outline = viewer.OutlineInWork())
    PaintMark(painter, *outline, viewer.MarkerSize());
  const std::optional<DrawnBox>& box = viewer.Box().Drawn();
  if (box.has_value() && box->page == viewer.Page()) {
    painter.setPen(QPen(CurrentLook().accent.darker(110), 2 / scale, Qt::DashLine));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(RectOf(box->place));
  }
}

void PaintCrossHair(QPainter& painter, PdfDraw& viewer, double scale) {
  const bool pointing = viewer.Tool() != PlanTool::None || viewer.Box().Asked() ||
                        viewer.PointNext() || viewer.Hand().Holds();
  if (!pointing) return;
  const PagePoint hair = viewer.CrossHair();
  if (const std::optional<SnapHit> sign = viewer.Snap().Sign())
    PaintSnapSign(painter, *sign, scale);
  const double arm = 9 / scale;
  painter.setPen(QPen(CurrentLook().accent.darker(110), 1.4 / scale));
  painter.drawLine(QPointF(hair.x - arm, hair.y), QPointF(hair.x + arm, hair.y));
  painter.drawLine(QPointF(hair.x, hair.y - arm), QPointF(hair.x, hair.y + arm));
}

}  // namespace tamo
