#include "windows/plancanvas.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>

#include "windows/look.h"
#include "windows/planpaint.h"

namespace tamo {
namespace {

constexpr int kRest = 150;         // milliseconds after which the sheet rests
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
  viewer_.onPrint = nullptr;
  viewer_.onBringToFront = nullptr;
  viewer_.onSaveProgress = nullptr;
  if (pictures_ != nullptr) pictures_->onPicturesChanged = nullptr;
}

double PlanCanvas::Scale() const {
  return PixelsPerPoint(viewer_.Zoom(), 1);
}

int PlanCanvas::Turn() const {
  const int quarters = static_cast<int>(std::lround(viewer_.ViewValue(PdfDraw::Rotation) / 90.0));
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
  return {at(page.width(), view.width(), viewer_.ViewValue(PdfDraw::Horizontal) * Scale()),
          at(page.height(), view.height(), viewer_.ViewValue(PdfDraw::Vertical) * Scale())};
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
    viewer_.SetViewValue(PdfDraw::Horizontal,
                         std::max(0, static_cast<int>(turned.x() - half.width())));
    viewer_.SetViewValue(PdfDraw::Vertical,
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
  set(horizontalScrollBar(), page.width(), view.width(), viewer_.ViewValue(PdfDraw::Horizontal));
  set(verticalScrollBar(), page.height(), view.height(), viewer_.ViewValue(PdfDraw::Vertical));
  syncingBars_ = false;
}

void PlanCanvas::scrollContentsBy(int, int) {
  if (syncingBars_) return;
  const double dx = horizontalScrollBar()->value() - viewer_.ViewValue(PdfDraw::Horizontal);
  const double dy = verticalScrollBar()->value() - viewer_.ViewValue(PdfDraw::Vertical);
  if (dx != 0 || dy != 0) Pan({dx, dy});
}

void PlanCanvas::resizeEvent(QResizeEvent* event) {
  QAbstractScrollArea::resizeEvent(event);
  ViewChanged();
}

void PlanCanvas::paintEvent(QPaintEvent*) {
  QPainter painter(viewport());
  const Look& look = CurrentLook();
  painter.fillRect(viewport()->rect(), look.dark ? look.base : look.faintLine);
  const QPointF origin = Origin();
  const QSizeF page = TurnedPage() * Scale();
  painter.fillRect(QRectF(origin, page), Qt::white);
  if (pictures_ != nullptr) {
    const PlanView view = View();
    pictures_->Look(view);
    const double ratio = devicePixelRatioF();
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
  PaintWork(painter);
  painter.restore();
  if (hasFocus()) {
    painter.setPen(QPen(look.accent, 2));
    painter.drawRect(viewport()->rect().adjusted(1, 1, -1, -1));
  }
}

void PlanCanvas::PaintMarks(QPainter& painter) const {
  const std::vector<Mark> marks = viewer_.Marks();
  for (auto mark = marks.rbegin(); mark != marks.rend(); ++mark) {
    if (mark->page == viewer_.Page()) PaintMark(painter, *mark, viewer_.MarkerSize());
  }
}

void PlanCanvas::PaintWork(QPainter& painter) const {
  const LineInWork line = viewer_.LineWork();
  if (line.active && line.page == viewer_.Page()) {
    Mark mark;
    mark.points = {line.from, line.to};
    mark.page = line.page;
    mark.colour = viewer_.MarkColour();
    mark.width = viewer_.MarkWidth();
    mark.label = line.text;
    PaintMark(painter, mark, viewer_.MarkerSize());
  }
  const std::optional<DrawnBox> box = viewer_.Box();
  if (box.has_value() && box->page == viewer_.Page()) {
    painter.setPen(QPen(CurrentLook().accent.darker(110), 2 / Scale(), Qt::DashLine));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(QRectF(QPointF(box->topLeft.x, box->topLeft.y),
                            QPointF(box->bottomRight.x, box->bottomRight.y)));
  }
  if (viewer_.Tool() == PdfDraw::NoTool || !hasFocus()) return;
  const PagePoint hair = viewer_.CrossHair();
  const double arm = 9 / Scale();
  painter.setPen(QPen(CurrentLook().accent.darker(110), 1.4 / Scale()));
  painter.drawLine(QPointF(hair.x - arm, hair.y), QPointF(hair.x + arm, hair.y));
  painter.drawLine(QPointF(hair.x, hair.y - arm), QPointF(hair.x, hair.y + arm));
}

// Without a tool in hand the left button pulls the sheet, as the middle one always does.
void PlanCanvas::mousePressEvent(QMouseEvent* event) {
  const bool left = event->button() == Qt::LeftButton;
  if (!left && event->button() != Qt::MiddleButton) return;
  FinishScroll();
  panFrom_ = event->position();
  pressedAt_ = event->position();
  const bool tool = viewer_.Tool() != PdfDraw::NoTool || viewer_.BoxNext();
  panning_ = !left || !tool;
  if (!left) return;
  drawing_ = tool;
  const PagePoint at = PageAt(event->position());
  const bool shift = event->modifiers().testFlag(Qt::ShiftModifier);
  desk_.Dispatch([&] { viewer_.Press(at, shift); });
}

void PlanCanvas::mouseMoveEvent(QMouseEvent* event) {
  const bool shift = event->modifiers().testFlag(Qt::ShiftModifier);
  if (drawing_ && event->buttons() == Qt::NoButton) {
    // The release went to a message box that the press brought up.
    drawing_ = false;
    desk_.Dispatch([&] { viewer_.Release(PageAt(pressedAt_), shift); });
  }
  if (panning_ && event->buttons() != Qt::NoButton) {
    viewport()->setCursor(Qt::ClosedHandCursor);
    Pan((panFrom_ - event->position()) / Scale());
    panFrom_ = event->position();
    return;
  }
  if (!drawing_ && !viewer_.LineWork().active) return;
  const PagePoint at = PageAt(event->position());
  desk_.Dispatch([&] { viewer_.Move(at, shift); });
}

void PlanCanvas::mouseReleaseEvent(QMouseEvent* event) {
  if (panning_) {
    panning_ = false;
    viewport()->setCursor(Qt::CrossCursor);
    FinishScroll();
  }
  if (event->button() != Qt::LeftButton) return;
  drawing_ = false;
  const PagePoint at = PageAt(event->position());
  const bool shift = event->modifiers().testFlag(Qt::ShiftModifier);
  desk_.Dispatch([&] { viewer_.Release(at, shift); });
}

// Two quick clicks are two clicks: a line begun and ended.
void PlanCanvas::mouseDoubleClickEvent(QMouseEvent* event) {
  mousePressEvent(event);
}

void PlanCanvas::Pan(const QPointF& points) {
  const QSizeF page = TurnedPage();
  const QSizeF view = QSizeF(viewport()->size()) / Scale();
  const double mostX = std::max(0.0, page.width() - view.width());
  const double mostY = std::max(0.0, page.height() - view.height());
  if (!scrolling_) {
    scrolling_ = true;
    for (const int index : {0, 1}) scrollFrom_[index] = viewer_.ViewValue(index);
    scrollTo_ = {std::clamp<double>(scrollFrom_[0], 0, mostX),
                 std::clamp<double>(scrollFrom_[1], 0, mostY)};
  }
  scrollTo_ = {std::clamp(scrollTo_.x() + points.x(), 0.0, mostX),
               std::clamp(scrollTo_.y() + points.y(), 0.0, mostY)};
  viewer_.SetViewValue(PdfDraw::Horizontal, static_cast<int>(std::lround(scrollTo_.x())));
  viewer_.SetViewValue(PdfDraw::Vertical, static_cast<int>(std::lround(scrollTo_.y())));
  rest_.start();
}

void PlanCanvas::FinishScroll() {
  rest_.stop();
  if (!scrolling_) return;
  scrolling_ = false;
  const int dx = viewer_.ViewValue(PdfDraw::Horizontal) - scrollFrom_[0];
  const int dy = viewer_.ViewValue(PdfDraw::Vertical) - scrollFrom_[1];
  if (dx == 0 && dy == 0) return;
  viewer_.SetViewValue(PdfDraw::Horizontal, scrollFrom_[0]);
  viewer_.SetViewValue(PdfDraw::Vertical, scrollFrom_[1]);
  desk_.Dispatch([&] { viewer_.ScrollBy(dx, dy); });
}

void PlanCanvas::wheelEvent(QWheelEvent* event) {
  const QPointF notches = QPointF(event->angleDelta()) / 120.0;
  event->accept();
  if (event->modifiers().testFlag(Qt::ControlModifier)) {
    if (notches.y() > 0 && onZoomIn) onZoomIn();
    if (notches.y() < 0 && onZoomOut) onZoomOut();
    return;
  }
  QPointF pixels = event->pixelDelta().isNull() ? notches * kWheelStep * PixelsPerPoint(100, 1)
                                                : QPointF(event->pixelDelta());
  if (event->modifiers().testFlag(Qt::ShiftModifier) && pixels.x() == 0) pixels = {pixels.y(), 0};
  Pan(-pixels / Scale());
}

void PlanCanvas::TurnView() {
  desk_.Dispatch([this] {
    viewer_.SetViewValue(PdfDraw::Rotation, (Turn() + 90) % 360);
    viewer_.SetViewValue(PdfDraw::Horizontal, 0);
    viewer_.SetViewValue(PdfDraw::Vertical, 0);
  });
  ViewChanged();
}

// The tool bar by letters, while the keys go to the plan.
bool PlanCanvas::TakeLetter(int key) {
  const auto pick = [this](int mode) {
    desk_.Dispatch([&] { viewer_.PickTool(mode); });
    return true;
  };
  switch (key) {
    case Qt::Key_V:
      return pick(PdfDraw::NoTool);
    case Qt::Key_M:
      return pick(PdfDraw::Measuring);
    case Qt::Key_C:
      return pick(PdfDraw::Counting);
    case Qt::Key_T:
      TurnView();
      return true;
    case Qt::Key_Plus:
      if (onZoomIn) onZoomIn();
      return true;
    case Qt::Key_Minus:
      if (onZoomOut) onZoomOut();
      return true;
    default:
      return false;
  }
}

bool PlanCanvas::TakeKey(const QKeyEvent& event) {
  static constexpr std::pair<int, PlanKey> kKeys[] = {{Qt::Key_Left, PlanKey::Left},
                                                      {Qt::Key_Right, PlanKey::Right},
                                                      {Qt::Key_Up, PlanKey::Up},
                                                      {Qt::Key_Down, PlanKey::Down},
                                                      {Qt::Key_Space, PlanKey::Space},
                                                      {Qt::Key_Return, PlanKey::Enter},
                                                      {Qt::Key_Enter, PlanKey::Enter},
                                                      {Qt::Key_Escape, PlanKey::Escape},
                                                      {Qt::Key_Backspace, PlanKey::Backspace},
                                                      {Qt::Key_Z, PlanKey::Undo},
                                                      {Qt::Key_Y, PlanKey::Redo}};
  const bool ctrl = event.modifiers().testFlag(Qt::ControlModifier);
  const bool shift = event.modifiers().testFlag(Qt::ShiftModifier);
  if (event.modifiers().testFlag(Qt::AltModifier)) return false;
  FinishScroll();
  if (!ctrl && TakeLetter(event.key())) return true;
  if (event.key() == Qt::Key_PageDown || event.key() == Qt::Key_PageUp) {
    const int page = viewer_.Page() + (event.key() == Qt::Key_PageDown ? 1 : -1);
    desk_.Dispatch([&] { viewer_.TurnPage(page); });
    return true;
  }
  for (const auto& [code, key] : kKeys) {
    if (event.key() != code) continue;
    const bool needsCtrl = key == PlanKey::Undo || key == PlanKey::Redo;
    if (needsCtrl && !ctrl) return false;
    desk_.Dispatch([&, pressed = key] { viewer_.Key({pressed, shift, ctrl}); });
    return true;
  }
  return false;
}

PlanBinding::PlanBinding(Display& display, Control& control, PlanCanvas& canvas)
    : Binding(display, control, canvas), canvas_(canvas) {}

bool PlanBinding::eventFilter(QObject*, QEvent* event) {
  if (event->type() != QEvent::KeyPress) {
    if (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut)
      canvas_.viewport()->update();
    return TakeCommon(event);
  }
  auto& key = static_cast<QKeyEvent&>(*event);
  return canvas_.TakeKey(key) || GetDisplay().TakeKey(*this, key);
}

PlanCanvas* FindPlanCanvas(const QWidget& window) {
  for (QWidget* widget : window.findChildren<QWidget*>(QStringLiteral("picPdfDraw"))) {
    if (auto* canvas = dynamic_cast<PlanCanvas*>(widget)) return canvas;
  }
  return nullptr;
}

}  // namespace tamo
