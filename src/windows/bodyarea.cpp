#include "windows/bodyarea.h"

#include <QKeyEvent>
#include <QLayout>
#include <QResizeEvent>
#include <algorithm>

#include "windows/look.h"
#include "windows/windowplaces.h"

namespace tamo {
namespace {

constexpr int kLeast = 20 * kGrid;

// The window's own menus and foot, which never scroll.
int HeightOfTheRest(const QWidget& area) {
  const QLayout* layout = area.window()->layout();
  if (layout == nullptr) return 0;
  int rest = layout->menuBar() == nullptr ? 0 : layout->menuBar()->sizeHint().height();
  for (int i = 0; i < layout->count(); ++i) {
    const QWidget* part = layout->itemAt(i)->widget();
    if (part != nullptr && part != &area && !part->isHidden()) rest += part->sizeHint().height();
  }
  return rest;
}

}  // namespace

int BodyPage::heightForWidth(int width) const {
  return layout() == nullptr ? -1 : layout()->totalMinimumHeightForWidth(width);
}

BodyArea::BodyArea(BodyPage* contents) {
  setFrameShape(QFrame::NoFrame);
  setFocusPolicy(Qt::NoFocus);
  setWidgetResizable(true);
  setWidget(contents);
}

// Prompts that run over several lines are as high as the width makes them.
QSize BodyArea::WholeSize() const {
  QSize whole = widget()->minimumSizeHint();
  const QLayout* layout = widget()->layout();
  if (layout != nullptr && layout->hasHeightForWidth()) {
    const int high = layout->totalMinimumHeightForWidth(std::max(whole.width(), width()));
    whole.setHeight(std::max(whole.height(), high));
  }
  return whole;
}

void BodyArea::resizeEvent(QResizeEvent* event) {
  QScrollArea::resizeEvent(event);
  if (event->oldSize().width() != width()) updateGeometry();
}

QSize BodyArea::minimumSizeHint() const {
  const QSize whole = WholeSize();
  const QSize room = RoomFor(*window());
  const QSize own(room.width(), room.height() - HeightOfTheRest(*this));
  if (whole.width() <= own.width() && whole.height() <= own.height()) return whole;
  return whole.boundedTo(own).expandedTo(QSize(kLeast, kLeast)).boundedTo(whole);
}

QSize BodyArea::sizeHint() const {
  return widget()->sizeHint();
}

bool BodyArea::eventFilter(QObject* object, QEvent* event) {
  if (object == widget() && event->type() == QEvent::LayoutRequest) updateGeometry();
  return QScrollArea::eventFilter(object, event);
}

// The keys are the form's.
void BodyArea::keyPressEvent(QKeyEvent* event) {
  event->ignore();
}

// In every area that scrolls, from the innermost out: all of it, or its beginning where it is
// larger than the area.
void BringIntoSight(QWidget& widget) {
  for (QWidget* at = widget.parentWidget(); at != nullptr; at = at->parentWidget()) {
    auto* area = qobject_cast<QScrollArea*>(at);
    if (area == nullptr || area->widget() == nullptr || !area->widget()->isAncestorOf(&widget))
      continue;
    const QPoint corner = widget.mapTo(area->widget(), QPoint());
    const QPoint end = corner + QPoint(widget.width(), widget.height());
    area->ensureVisible(end.x(), end.y(), kGrid, kGrid);
    area->ensureVisible(corner.x(), corner.y(), kGrid, kGrid);
  }
}

}  // namespace tamo
