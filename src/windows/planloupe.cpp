#include "windows/planloupe.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QTimer>
#include <algorithm>

#include "plans/comparison.h"
#include "windows/look.h"

namespace tamo {
namespace {

constexpr int kSide = 26 * kGrid;
constexpr int kTimes = 3;
constexpr int kAway = 4 * kGrid;  // from the pointer, so that the place itself stays in sight

}  // namespace

PlanLoupe::PlanLoupe(PlanCanvas& canvas, PdfDraw& viewer)
    : QWidget(canvas.viewport()), canvas_(canvas), viewer_(viewer) {
  setObjectName(QStringLiteral("PlanLoupe"));
  setAccessibleName(QStringLiteral("Loupe"));
  setAttribute(Qt::WA_TransparentForMouseEvents);
  setFixedSize(kSide, kSide);
  hide();
  canvas.installEventFilter(this);
  canvas.viewport()->installEventFilter(this);
}

void PlanLoupe::Toggle() {
  if (isVisible()) return hide();
  const QPoint at = canvas_.viewport()->mapFromGlobal(QCursor::pos());
  const QRect view = canvas_.viewport()->rect();
  show();
  if (viewer_.Tool() != PlanTool::None) {
    FollowCrossHair();
  } else {
    Follow(view.contains(at) ? at : view.center());
  }
}

// Beside the place, on the side where there is room.
void PlanLoupe::Follow(const QPointF& place) {
  place_ = place;
  const QRect view = canvas_.viewport()->rect();
  const int x = static_cast<int>(place.x());
  const int y = static_cast<int>(place.y());
  const int left = x + kAway + kSide <= view.right() ? x + kAway : x - kAway - kSide;
  const int top = y - kAway - kSide >= 0 ? y - kAway - kSide : y + kAway;
  move(std::clamp(left, 0, std::max(0, view.width() - kSide)),
       std::clamp(top, 0, std::max(0, view.height() - kSide)));
  raise();
  update();
}

void PlanLoupe::FollowCrossHair() {
  Follow(canvas_.PlaceInView(viewer_.CrossHair()));
}

bool PlanLoupe::eventFilter(QObject* object, QEvent* event) {
  if (object == &canvas_ && event->type() == QEvent::KeyPress) {
    const auto* key = static_cast<QKeyEvent*>(event);
    if (key->key() == Qt::Key_O && key->modifiers() == Qt::NoModifier && !viewer_.Compared().On()) {
      Toggle();
      return true;
    }
    // The key moves the cross hair first.
    if (isVisible() && viewer_.Tool() != PlanTool::None)
      QTimer::singleShot(0, this, [this] { FollowCrossHair(); });
  } else if (isVisible() && event->type() == QEvent::MouseMove) {
    Follow(static_cast<QMouseEvent*>(event)->position());
  }
  return false;
}

void PlanLoupe::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
  QPainterPath glass;
  glass.addEllipse(QRectF(rect()).adjusted(2, 2, -2, -2));
  painter.save();
  painter.setClipPath(glass);
  painter.translate(rect().center());
  painter.scale(kTimes, kTimes);
  const int reach = kSide / kTimes / 2 + 2;
  const QPoint middle = place_.toPoint();
  const QRect around(middle.x() - reach, middle.y() - reach, 2 * reach, 2 * reach);
  const QRect seen = around.intersected(canvas_.viewport()->rect());
  if (!seen.isEmpty())
    canvas_.viewport()->render(&painter, seen.topLeft() - middle, QRegion(seen), RenderFlags());
  painter.restore();
  const QPoint centre = rect().center();
  painter.setPen(QPen(CurrentLook().accent, 1));
  painter.drawLine(centre - QPoint(kGrid, 0), centre + QPoint(kGrid, 0));
  painter.drawLine(centre - QPoint(0, kGrid), centre + QPoint(0, kGrid));
  painter.setPen(QPen(CurrentLook().accent, 3));
  painter.drawPath(glass);
}

}  // namespace tamo
