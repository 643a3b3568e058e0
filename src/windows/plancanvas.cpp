#include "windows/plancanvas.h"

#include <QMouseEvent>
#include <QScrollBar>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>

#include "plans/comparison.h"

namespace tamo {
namespace {

constexpr int kRest = 150;         // milliseconds after which the sheet rests
constexpr double kStill = 3;       // pixels that a click may move
constexpr double kWheelStep = 60;  // points for a notch of the wheel at 100 per cent

}  // namespace

PlanCanvas::PlanCanvas(PdfDraw& viewer, PlanPictures* pictures, Desk& desk, QWidget* parent)
    : QAbstractScrollArea(parent), viewer_(viewer), pictures_(pictures), desk_(desk) {
  setObjectName(QStringLiteral("picPdfDraw"));
  setAccessibleName(QStringLiteral("Plan"));
  setFocusPolicy(Qt::TabFocus);
  setFrameShape(QFrame::NoFrame);
  viewport()->setMouseTracking(true);
  viewport()->setCursor(Qt::CrossCursor);
  viewport()->setAttribute(Qt::WA_OpaquePaintEvent);
  rest_.setSingleShot(true);
  rest_.setInterval(kRest);
  connect(&rest_, &QTimer::timeout, this, [this] { FinishScroll(); });
  viewer_.onMarksChanged = [this] { viewport()->update(); };
  viewer_.onViewChanged = [this] { ViewChanged(); };
  viewer_.Compared().onShowPlace = [this](const PageBox& box) { PlaceInView(box.Middle()); };
  viewer_.onLookAt = [this](PagePoint at) { PlaceInView(at); };
  if (pictures_ != nullptr) {
    pictures_->onPicturesChanged = [this] {
      viewport()->update();
      if (onPictures) onPictures();
    };
  }
}

PlanCanvas::~PlanCanvas() {
  viewer_.onMarksChanged = nullptr;
  viewer_.onViewChanged = nullptr;
  viewer_.Compared().onShowPlace = nullptr;
  viewer_.onLookAt = nullptr;
  viewer_.onPrint = nullptr;
  viewer_.onBringToFront = nullptr;
  viewer_.onSaveProgress = nullptr;
  if (pictures_ != nullptr) pictures_->onPicturesChanged = nullptr;
}

QPointF PlanCanvas::PlaceInView(PagePoint at) {
  const QPointF place = Sheet().InWindow(at);
  if (QRectF(viewport()->rect()).adjusted(8, 8, -8, -8).contains(place)) return place;
  const QPointF turned = Sheet().Turned(at);
  const QSizeF half = Sheet().Shown() / 2;
  viewer_.SetViewValue(ViewPart::Horizontal,
                       std::max(0, static_cast<int>(turned.x() - half.width())));
  viewer_.SetViewValue(ViewPart::Vertical,
                       std::max(0, static_cast<int>(turned.y() - half.height())));
  ViewChanged();
  return Sheet().InWindow(at);
}

void PlanCanvas::ViewChanged() {
  SyncBars();
  lookedRatio_ = devicePixelRatioF();
  if (pictures_ != nullptr) pictures_->Look(Sheet().View(lookedRatio_));
  viewport()->update();
  if (onPictures) onPictures();
}

void PlanCanvas::SyncBars() {
  syncingBars_ = true;
  const QSizeF page = Sheet().Page();
  const QSizeF view = Sheet().Shown();
  const auto set = [](QScrollBar* bar, double whole, double shown, int value) {
    bar->setRange(0, std::max(0, static_cast<int>(std::ceil(whole - shown))));
    bar->setPageStep(std::max(1, static_cast<int>(shown)));
    bar->setSingleStep(std::max(1, static_cast<int>(shown / 12)));
    bar->setValue(value);
  };
  set(horizontalScrollBar(), page.width(), view.width(), viewer_.ViewValue(ViewPart::Horizontal));
  set(verticalScrollBar(), page.height(), view.height(), viewer_.ViewValue(ViewPart::Vertical));
  syncingBars_ = false;
}

void PlanCanvas::scrollContentsBy(int, int) {
  if (syncingBars_) return;
  const double dx = horizontalScrollBar()->value() - viewer_.ViewValue(ViewPart::Horizontal);
  const double dy = verticalScrollBar()->value() - viewer_.ViewValue(ViewPart::Vertical);
  if (dx != 0 || dy != 0) Pan({dx, dy});
}

void PlanCanvas::resizeEvent(QResizeEvent* event) {
  QAbstractScrollArea::resizeEvent(event);
  ViewChanged();
}

PagePoint PlanCanvas::Pointed(const QMouseEvent& event) {
  return viewer_.Snap().Point(Sheet().OnPage(event.position()),
                              event.modifiers().testFlag(Qt::AltModifier));
}

// A hand with a finger over a link, while a click on it follows it.
void PlanCanvas::ShowPointer(const QPointF& place) {
  const bool follows = viewer_.Tool() == PlanTool::None && !viewer_.Box().Asked() && linkAt;
  const QString link = follows ? linkAt(Sheet().OnPage(place)) : QString();
  if (viewport()->toolTip() == link) return;
  viewport()->setToolTip(link);
  viewport()->setCursor(link.isEmpty() ? Qt::CrossCursor : Qt::PointingHandCursor);
}

// Without a tool in hand the left button pulls the sheet, as the middle one always does.
void PlanCanvas::mousePressEvent(QMouseEvent* event) {
  const bool left = event->button() == Qt::LeftButton;
  if (!left && event->button() != Qt::MiddleButton) return;
  FinishScroll();
  panFrom_ = event->position();
  pressedAt_ = event->position();
  const bool tool =
      viewer_.Tool() != PlanTool::None || viewer_.Box().Asked() || viewer_.PointNext();
  panning_ = !left || !tool;
  pulled_ = false;
  if (!left) return;
  drawing_ = tool;
  const PagePoint at = Pointed(*event);
  const bool shift = event->modifiers().testFlag(Qt::ShiftModifier);
  desk_.Dispatch([&] { viewer_.Press(at, shift); });
  // A point of the chosen mark is moved, not the sheet.
  if (!viewer_.Hand().Holds()) return;
  panning_ = false;
  drawing_ = true;
}

void PlanCanvas::mouseMoveEvent(QMouseEvent* event) {
  const bool shift = event->modifiers().testFlag(Qt::ShiftModifier);
  if (drawing_ && event->buttons() == Qt::NoButton) {
    // The release went to a message box that the press brought up.
    drawing_ = false;
    desk_.Dispatch([&] { viewer_.Release(Sheet().OnPage(pressedAt_), shift); });
  }
  if (panning_ && event->buttons() != Qt::NoButton) {
    const QPointF moved = event->position() - pressedAt_;
    if (!pulled_ && moved.manhattanLength() < kStill) return;
    pulled_ = true;
    viewer_.Hand().Pulled();
    viewport()->setCursor(Qt::ClosedHandCursor);
    Pan((panFrom_ - event->position()) / Sheet().Scale());
    panFrom_ = event->position();
    return;
  }
  ShowPointer(event->position());
  const bool follows = drawing_ || viewer_.WorkFrom() || viewer_.Snap().Active();
  if (!follows && !viewer_.PointNext()) return;
  const PagePoint at = Pointed(*event);
  desk_.Dispatch([&] { viewer_.Move(at, shift); });
}

void PlanCanvas::mouseReleaseEvent(QMouseEvent* event) {
  if (panning_) {
    panning_ = false;
    viewport()->setCursor(Qt::CrossCursor);
    FinishScroll();
  }
  if (event->button() != Qt::LeftButton || pulled_) return;
  drawing_ = false;
  const PagePoint at = Pointed(*event);
  const bool shift = event->modifiers().testFlag(Qt::ShiftModifier);
  desk_.Dispatch([&] { viewer_.Release(at, shift); });
}

// Two quick clicks are two clicks: a line begun and ended. An outline ends with them.
void PlanCanvas::mouseDoubleClickEvent(QMouseEvent* event) {
  const bool ends = event->button() == Qt::LeftButton && viewer_.OutlineInWork().has_value();
  if (!ends) return mousePressEvent(event);
  const PagePoint at = Sheet().OnPage(event->position());
  desk_.Dispatch([&] { viewer_.DoubleClick(at, false); });
}

void PlanCanvas::Pan(const QPointF& points) {
  const QSizeF page = Sheet().Page();
  const QSizeF view = Sheet().Shown();
  const double mostX = std::max(0.0, page.width() - view.width());
  const double mostY = std::max(0.0, page.height() - view.height());
  if (!scrolling_) {
    scrolling_ = true;
    scrollFrom_[0] = viewer_.ViewValue(ViewPart::Horizontal);
    scrollFrom_[1] = viewer_.ViewValue(ViewPart::Vertical);
    scrollTo_ = {std::clamp<double>(scrollFrom_[0], 0, mostX),
                 std::clamp<double>(scrollFrom_[1], 0, mostY)};
  }
  scrollTo_ = {std::clamp(scrollTo_.x() + points.x(), 0.0, mostX),
               std::clamp(scrollTo_.y() + points.y(), 0.0, mostY)};
  viewer_.SetViewValue(ViewPart::Horizontal, static_cast<int>(std::lround(scrollTo_.x())));
  viewer_.SetViewValue(ViewPart::Vertical, static_cast<int>(std::lround(scrollTo_.y())));
  rest_.start();
}

void PlanCanvas::FinishScroll() {
  rest_.stop();
  if (!scrolling_) return;
  scrolling_ = false;
  const int dx = viewer_.ViewValue(ViewPart::Horizontal) - scrollFrom_[0];
  const int dy = viewer_.ViewValue(ViewPart::Vertical) - scrollFrom_[1];
  if (dx == 0 && dy == 0) return;
  viewer_.SetViewValue(ViewPart::Horizontal, scrollFrom_[0]);
  viewer_.SetViewValue(ViewPart::Vertical, scrollFrom_[1]);
  desk_.Dispatch([&] { viewer_.ScrollBy(dx, dy); });
}

void PlanCanvas::wheelEvent(QWheelEvent* event) {
  const QPointF notches = QPointF(event->angleDelta()) / 120.0;
  event->accept();
  if (event->modifiers().testFlag(Qt::ControlModifier)) {
    if (notches.y() != 0) ZoomByWheel(event->position(), notches.y());
    return;
  }
  QPointF pixels = event->pixelDelta().isNull() ? notches * kWheelStep * PixelsPerPoint(100, 1)
                                                : QPointF(event->pixelDelta());
  if (event->modifiers().testFlag(Qt::ShiftModifier) && pixels.x() == 0) pixels = {pixels.y(), 0};
  Pan(-pixels / Sheet().Scale());
}

void PlanCanvas::TurnView() {
  desk_.Dispatch([this] {
    viewer_.SetViewValue(ViewPart::Rotation, (Sheet().Turn() + 90) % 360);
    viewer_.SetViewValue(ViewPart::Horizontal, 0);
    viewer_.SetViewValue(ViewPart::Vertical, 0);
  });
  ViewChanged();
}

PlanCanvas* FindPlanCanvas(const QWidget& window) {
  for (QWidget* widget : window.findChildren<QWidget*>(QStringLiteral("picPdfDraw"))) {
    if (auto* canvas = dynamic_cast<PlanCanvas*>(widget)) return canvas;
  }
  return nullptr;
}

}  // namespace tamo
