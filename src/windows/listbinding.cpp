#include "windows/listbinding.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScrollBar>
#include <algorithm>

#include "windows/look.h"
#include "windows/roles.h"

namespace tamo {
namespace {

constexpr int kMostDropRows = 12;

}  // namespace

ListBinding::ListBinding(Display& display, OrderedList& list, RowsView& view)
    : Binding(display, list, view), list_(list), view_(view) {
  view.viewport()->installEventFilter(this);
  if (!list.takesFocus) view.setFocusPolicy(Qt::NoFocus);
  if (Picks() || dynamic_cast<CheckList*>(&list) != nullptr)
    view.viewport()->setCursor(Qt::PointingHandCursor);
  QScrollBar* bar = view.verticalScrollBar();
  // Raised by the wheel, the keys and the mouse, never by a change of the rows or of the size.
  connect(bar, &QAbstractSlider::actionTriggered, this, [this, bar] {
    if (!GetDisplay().Syncing()) GetDesk().ScrollTo(list_, bar->sliderPosition());
  });
}

void ListBinding::DropFrom(TextField& field, QWidget& fieldWidget, QWidget& window) {
  under_ = &field;
  underWidget_ = &fieldWidget;
  fieldWidget.installEventFilter(this);
  Float(window);
}

void ListBinding::PopUpIn(QWidget& window) {
  Float(window);
}

void ListBinding::Float(QWidget& window) {
  window_ = &window;
  view_.setParent(&window);
  view_.hide();
  GiveRole(view_, Role::Drop);
  window.installEventFilter(this);
}

void ListBinding::Apply() {
  QScrollBar* bar = view_.verticalScrollBar();
  const int stood = bar->value();
  const bool other = view_.Model().TakeOver();
  if (other) {
    view_.SetWalked(-1);
    view_.doItemsLayout();
    bar->setValue(stood);
  } else if (dynamic_cast<CheckList*>(&list_) != nullptr) {
    // Told as changed data, a tick would have the view lay out every row anew.
    view_.viewport()->update();
  }
  const int index = list_.Index();
  view_.SetSelected(index);
  if (list_.ShownWithFrames() && (under_ != nullptr || view_.isHidden())) Place();
  Binding::Apply();
  // A list of nothing is no list.
  if (list_.dropsFrom != nullptr && list_.Empty() && !view_.isHidden()) view_.hide();
  if (!list_.Shown()) view_.SetWalked(-1);
  if (index >= 0 && (index != appliedIndex_ || other)) view_.scrollTo(view_.Model().index(index));
  appliedIndex_ = index;
  // Where the form wants another first row, it has the last word.
  if (list_.Top() != appliedTop_) {
    appliedTop_ = list_.Top();
    bar->setValue(appliedTop_);
  }
  if (onApplied) onApplied();
}

// As wide as the field; where the window ends before twelve rows do, what is left scrolls.
void ListBinding::Place() {
  if (window_.isNull()) return;
  const int frame = 2 * view_.frameWidth() + 2;
  const int rows = std::clamp(list_.Count(), 1, kMostDropRows);
  const int whole = rows * view_.RowHeight() + frame;
  if (underWidget_.isNull()) {
    const QPoint click = window_->mapFromGlobal(GetDisplay().popupPlace);
    const int width = view_.WidthOfColumns(view_.wantedColumns);
    const int left = std::clamp(click.x(), 0, std::max(0, window_->width() - width));
    const int top = std::clamp(click.y(), 0, std::max(0, window_->height() - whole));
    view_.setGeometry(left, top, width, whole);
  } else {
    const QPoint corner = underWidget_->mapTo(window_, QPoint(0, underWidget_->height()));
    const int room = window_->height() - corner.y() - kGrid / 2;
    const int height = std::min(whole, std::max(room, 4 * kFieldHeight));
    view_.setGeometry(corner.x(), corner.y(), underWidget_->width(), height);
  }
  view_.raise();
}

bool ListBinding::TakeWalkKey(const QKeyEvent& event) {
  const int last = list_.Count() - 1;
  const int page = std::max(1, view_.viewport()->height() / view_.RowHeight() - 1);
  const int now = view_.Walked();
  const auto walk = [&](int row) {
    view_.SetWalked(std::clamp(row, 0, last));
    return true;
  };
  switch (event.key()) {
    case Qt::Key_Down:
      return walk(now < 0 ? std::max(list_.Index(), 0) : now + 1);
    case Qt::Key_Up:
      return now < 0 ? false : walk(now - 1);
    case Qt::Key_PageDown:
      return walk(std::max(now, 0) + page);
    case Qt::Key_PageUp:
      return walk(std::max(now, 0) - page);
    case Qt::Key_Return:
    case Qt::Key_Enter:
      view_.SetWalked(-1);
      if (now < 0 || now > last) return false;
      GetDesk().ClickRow(list_, now);
      return true;
    case Qt::Key_Shift:
    case Qt::Key_Control:
    case Qt::Key_Alt:
      return false;
    default:
      view_.SetWalked(-1);
      return false;
  }
}

void ListBinding::DragTo(int row) {
  QScrollBar* bar = view_.verticalScrollBar();
  bar->setSliderPosition(row);
  bar->triggerAction(QAbstractSlider::SliderMove);
  if (list_.Top() != row) GetDesk().ScrollTo(list_, row);
}

bool ListBinding::TakePageKey(const QKeyEvent& event) {
  QScrollBar* bar = view_.verticalScrollBar();
  switch (event.key()) {
    case Qt::Key_PageDown:
      bar->triggerAction(QAbstractSlider::SliderPageStepAdd);
      return true;
    case Qt::Key_PageUp:
      bar->triggerAction(QAbstractSlider::SliderPageStepSub);
      return true;
    case Qt::Key_Home:
      bar->triggerAction(QAbstractSlider::SliderToMinimum);
      return true;
    case Qt::Key_End:
      bar->triggerAction(QAbstractSlider::SliderToMaximum);
      return true;
    default:
      return false;
  }
}

void ListBinding::Press(const QPoint& at, Qt::MouseButton button, bool twice) {
  const int row = view_.indexAt(at).row();
  auto* checks = dynamic_cast<CheckList*>(&list_);
  GetDisplay().popupPlace = view_.viewport()->mapToGlobal(at);
  if (button == Qt::RightButton) {
    if (!list_.onRightClick) return;
    if (row >= 0) {
      GetDesk().RightClickRow(list_, row);
    } else {
      GetDesk().RightClick(list_);
    }
  } else if (row < 0) {
    if (list_.takesFocus) GetDesk().UserFocus(list_);
  } else if (checks != nullptr && view_.TickRect(row).adjusted(-4, -4, 4, 4).contains(at)) {
    GetDesk().TickRow(*checks, row);
  } else if (twice && list_.onDoubleClick) {
    GetDesk().DoubleClickRow(list_, row);
  } else {
    GetDesk().ClickRow(list_, row);
  }
}

bool ListBinding::TakeMouse(QEvent* event) {
  const auto* mouse = static_cast<QMouseEvent*>(event);
  switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
      if (mouse->button() == Qt::LeftButton || mouse->button() == Qt::RightButton) {
        Press(mouse->position().toPoint(), mouse->button(),
              event->type() == QEvent::MouseButtonDblClick);
      }
      return true;
    case QEvent::MouseButtonRelease:
      return true;
    case QEvent::MouseMove:
      return mouse->buttons() != Qt::NoButton;
    case QEvent::ContextMenu: {
      const int row = list_.Index();
      const bool keys =
          static_cast<QContextMenuEvent*>(event)->reason() == QContextMenuEvent::Keyboard;
      if (keys && list_.onRightClick && row >= 0) {
        GetDisplay().popupPlace =
            view_.viewport()->mapToGlobal(view_.visualRect(view_.Model().index(row)).bottomLeft());
        GetDesk().RightClickRow(list_, row);
      }
      return true;
    }
    default:
      return false;
  }
}

bool ListBinding::eventFilter(QObject* object, QEvent* event) {
  if (object == view_.viewport()) return TakeMouse(event);
  if (object == &view_) {
    if (event->type() == QEvent::KeyPress && TakePageKey(static_cast<const QKeyEvent&>(*event)))
      return true;
    if (event->type() == QEvent::ContextMenu) return TakeMouse(event);
    return TakeCommon(event);
  }
  const bool moved = event->type() == QEvent::Resize || event->type() == QEvent::Move;
  if (moved && list_.ShownWithFrames() && under_ != nullptr) Place();
  return false;
}

}  // namespace tamo
