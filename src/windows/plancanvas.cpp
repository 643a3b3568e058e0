#include "windows/plancanvas.h"

#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>

#include "plans/comparison.h"
#include "windows/look.h"
#include "windows/planpaint.h"

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
  viewer_.Compared().onShowPlace = [this](const PageBox& box) {
    PlaceInView({(box.left + box.right) / 2, (box.top + box.bottom) / 2});
  };
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

double PlanCanvas::Scale() const {
  return PixelsPerPoint(viewer_.Zoom(), 1);
}

int PlanCanvas::Turn() const {
  const int quarters = static_cast<int>(std::lround(viewer_.ViewValue(ViewPart::Rotation) / 90.0));
  return ((quarters % 4 + 4) % 4) * 90;
}

QSizeF PlanCanvas::TurnedPage() const {
  const PageSize size = viewer_.SizeOfPage(viewer_.Page());
  return Turn() % 180 == 0 ? QSizeF(size.width, size.height) : QSizeF(size.height, size.width);
}

QPointF PlanCanvas::Origin() const {
  const QSizeF page = TurnedPage() * Scale();
  const QSizeF view = viewport()->size();
  const auto at = [](double whole, double shown, double place) {
    return whole <= shown ? std::floor((shown - whole) / 2)
                          : -std::clamp(place, 0.0, whole - shown);
  };
  return {at(page.width(), view.width(), viewer_.ViewValue(ViewPart::Horizontal) * Scale()),
          at(page.height(), view.height(), viewer_.ViewValue(ViewPart::Vertical) * Scale())};
}

QPointF PlanCanvas::OnTurned(PagePoint at) const {
  const PageSize size = viewer_.SizeOfPage(viewer_.Page());
  switch (Turn()) {
    case 90:
      return {size.height - at.y, at.x};
    case 180:
      return {size.width - at.x, size.height - at.y};
    case 270:
      return {at.y, size.width - at.x};
    default:
      return {at.x, at.y};
  }
}

PagePoint PlanCanvas::PageAt(const QPointF& place) const {
  const QPointF at = (place - Origin()) / Scale();
  const PageSize size = viewer_.SizeOfPage(viewer_.Page());
  switch (Turn()) {
    case 90:
      return {at.y(), size.height - at.x()};
    case 180:
      return {size.width - at.x(), size.height - at.y()};
    case 270:
      return {size.width - at.y(), at.x()};
    default:
      return {at.x(), at.y()};
  }
}

QPointF PlanCanvas::PlaceInView(PagePoint at) {
  const QPointF turned = OnTurned(at);
  QPointF place = Origin() + turned * Scale();
  if (!QRectF(viewport()->rect()).adjusted(8, 8, -8, -8).contains(place)) {
    const QSizeF half = QSizeF(viewport()->size()) / (2 * Scale());
    viewer_.SetViewValue(ViewPart::Horizontal,
                         std::max(0, static_cast<int>(turned.x() - half.width())));
    viewer_.SetViewValue(ViewPart::Vertical,
                         std::max(0, static_cast<int>(turned.y() - half.height())));
    ViewChanged();
    place = Origin() + turned * Scale();
  }
  return place;
}

PlanView PlanCanvas::View() const {
  const double ratio = devicePixelRatioF();
  const QPointF origin = Origin();
  PlanView view;
  view.page = viewer_.Page();
  view.pixelsPerPoint = PixelsPerPoint(viewer_.Zoom(), ratio);
  view.turn = Turn();
  view.left = static_cast<int>(std::lround(std::max(0.0, -origin.x()) * ratio));
  view.top = static_cast<int>(std::lround(std::max(0.0, -origin.y()) * ratio));
  view.width = static_cast<int>(std::ceil(viewport()->width() * ratio));
  view.height = static_cast<int>(std::ceil(viewport()->height() * ratio));
  return view;
}

void PlanCanvas::ViewChanged() {
  SyncBars();
  lookedRatio_ = devicePixelRatioF();
  if (pictures_ != nullptr) pictures_->Look(View());
  viewport()->update();
  if (onPictures) onPictures();
}

void PlanCanvas::SyncBars() {
  syncingBars_ = true;
  const QSizeF page = TurnedPage();
  const QSizeF view = QSizeF(viewport()->size()) / Scale();
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
  return viewer_.Snap().Point(PageAt(event.position()),
                              event.modifiers().testFlag(Qt::AltModifier));
}

// A hand with a finger over a link, while a click on it follows it.
void PlanCanvas::ShowPointer(const QPointF& place) {
  const bool follows = viewer_.Tool() == PlanTool::None && !viewer_.Box().Asked() && linkAt;
  const QString link = follows ? linkAt(PageAt(place)) : QString();
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
    desk_.Dispatch([&] { viewer_.Release(PageAt(pressedAt_), shift); });
  }
  if (panning_ && event->buttons() != Qt::NoButton) {
    const QPointF moved = event->position() - pressedAt_;
    if (!pulled_ && moved.manhattanLength() < kStill) return;
    pulled_ = true;
    viewer_.Hand().Pulled();
    viewport()->setCursor(Qt::ClosedHandCursor);
    Pan((panFrom_ - event->position()) / Scale());
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
  const PagePoint at = PageAt(event->position());
  desk_.Dispatch([&] { viewer_.DoubleClick(at, false); });
}

void PlanCanvas::Pan(const QPointF& points) {
  const QSizeF page = TurnedPage();
  const QSizeF view = QSizeF(viewport()->size()) / Scale();
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
  Pan(-pixels / Scale());
}

void PlanCanvas::TurnView() {
  desk_.Dispatch([this] {
    viewer_.SetViewValue(ViewPart::Rotation, (Turn() + 90) % 360);
    viewer_.SetViewValue(ViewPart::Horizontal, 0);
    viewer_.SetViewValue(ViewPart::Vertical, 0);
  });
  ViewChanged();
}

}  // namespace tamo
