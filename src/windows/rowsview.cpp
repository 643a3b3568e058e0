#include "windows/rowsview.h"

#include <QApplication>
#include <QPaintEvent>
#include <QPainter>
#include <QScrollBar>
#include <algorithm>

#include "windows/look.h"
#include "windows/rowpainter.h"

namespace tamo {
namespace {

constexpr qint64 kFarAway = 1 << 20;  // pixels

}  // namespace

RowsView::RowsView(const OrderedList& list, QWidget* parent)
    : QListView(parent), model_(new RowsModel(list)) {
  model_->setParent(this);
  setModel(model_);
  setItemDelegate(new RowPainter(*this));
  setVerticalScrollMode(QAbstractItemView::ScrollPerItem);
  setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
  setAutoScroll(false);
  setSelectionMode(QAbstractItemView::SingleSelection);
  setEditTriggers(QAbstractItemView::NoEditTriggers);
  setSelectionRectVisible(false);
  setTabKeyNavigation(false);
  setMouseTracking(true);
  setFocusPolicy(Qt::TabFocus);
}

void RowsView::UseFixedColumns() {
  setFont(FixedFont());
}

int RowsView::RowHeight() const {
  return std::max(QFontMetrics(font()).height() * linesOfRow + 4, kTick + 4);
}

int RowsView::WidthOfColumns(int characters) const {
  const int one = QFontMetrics(font()).horizontalAdvance(QLatin1Char('0'));
  return characters * one + 2 * kGrid;
}

// The view itself makes a row the current one when the keyboard comes; only the list selects.
void RowsView::SetSelected(int row) {
  const QModelIndexList chosen = selectionModel()->selectedIndexes();
  const int shown = chosen.isEmpty() ? -1 : chosen.first().row();
  if (row == selected_ && row == shown) return;
  selected_ = row;
  if (row < 0) {
    clearSelection();
    setCurrentIndex({});
  } else {
    selectionModel()->setCurrentIndex(model_->index(row), QItemSelectionModel::ClearAndSelect);
  }
  viewport()->update();
}

void RowsView::SetWalked(int row) {
  if (walked_ == row) return;
  walked_ = row;
  if (row >= 0) scrollTo(model_->index(row));
  viewport()->update();
}

QRect RowsView::TickRect(int row) const {
  const QRect rect = visualRect(model_->index(row));
  if (!rect.isValid()) return {};
  return {rect.left() + kGrid, rect.top() + (rect.height() - kTick) / 2, kTick, kTick};
}

void RowsView::SetFound(const QString& text) {
  if (found_ == text) return;
  found_ = text;
  viewport()->update();
}

QSize RowsView::sizeHint() const {
  const int frame = 2 * (frameWidth() + 1);
  return {WidthOfColumns(wantedColumns) + frame + verticalScrollBar()->sizeHint().width(),
          wantedRows * RowHeight() + frame};
}

int RowsView::Top() const {
  return verticalScrollBar()->value();
}

int RowsView::WholeRows() const {
  return std::max(1, viewport()->height() / rowHeight_);
}

int RowsView::BesideWidth() const {
  constexpr int kLeastForText = 14;  // characters
  int wide = 0;
  for (const int characters : besideWidths) wide += WidthOfColumns(characters);
  return wide + WidthOfColumns(kLeastForText) <= viewport()->width() ? wide : 0;
}

int RowsView::ContentsWidth() const {
  const int wide =
      linesOfRow > 1 || besides ? 0 : WidthOfColumns(std::min(model_->LongestRow(), kMostPainted));
  return std::max(wide, viewport()->width());
}

int RowsView::horizontalOffset() const {
  return horizontalScrollBar()->value();
}

// In rows; only the difference of two is a length on the screen, and no int would hold it.
int RowsView::verticalOffset() const {
  return Top();
}

// A row far outside the viewport stands somewhere outside: no place on a screen is as far away as
// the last of five million rows.
QRect RowsView::visualRect(const QModelIndex& index) const {
  if (!index.isValid()) return {};
  const qint64 top = static_cast<qint64>(index.row() - Top()) * rowHeight_;
  return {-horizontalOffset(), static_cast<int>(std::clamp<qint64>(top, -kFarAway, kFarAway)),
          ContentsWidth(), rowHeight_};
}

QModelIndex RowsView::indexAt(const QPoint& point) const {
  if (point.y() < 0) return {};
  const int row = Top() + point.y() / rowHeight_;
  return row < model_->rowCount() ? model_->index(row) : QModelIndex();
}

void RowsView::scrollTo(const QModelIndex& index, ScrollHint hint) {
  if (!index.isValid()) return;
  const int row = index.row();
  const int last = row - WholeRows() + 1;
  if (hint == PositionAtCenter) {
    verticalScrollBar()->setValue((row + last) / 2);
  } else if (row < Top() || hint == PositionAtTop) {
    verticalScrollBar()->setValue(row);
  } else if (last > Top() || hint == PositionAtBottom) {
    verticalScrollBar()->setValue(last);
  }
}

// QListView would lay out each row; here a row's place is computed.
void RowsView::doItemsLayout() {
  // NOLINTNEXTLINE(bugprone-parent-virtual-call)
  QAbstractItemView::doItemsLayout();
}

void RowsView::updateGeometries() {
  rowHeight_ = RowHeight();
  const int rows = WholeRows();
  verticalScrollBar()->setPageStep(rows);
  verticalScrollBar()->setSingleStep(1);
  verticalScrollBar()->setRange(0, std::max(0, model_->rowCount() - rows));
  horizontalScrollBar()->setPageStep(viewport()->width());
  horizontalScrollBar()->setSingleStep(2 * kGrid);
  horizontalScrollBar()->setRange(0, ContentsWidth() - viewport()->width());
  // NOLINTNEXTLINE(bugprone-parent-virtual-call)
  QAbstractItemView::updateGeometries();
}

void RowsView::scrollContentsBy(int, int) {
  viewport()->update();
}

QModelIndex RowsView::moveCursor(CursorAction action, Qt::KeyboardModifiers) {
  const int last = model_->rowCount() - 1;
  if (last < 0) return {};
  int row = currentIndex().row();
  switch (action) {
    case MoveUp:
    case MovePrevious:
      --row;
      break;
    case MoveDown:
    case MoveNext:
      ++row;
      break;
    case MovePageUp:
      row -= WholeRows();
      break;
    case MovePageDown:
      row += WholeRows();
      break;
    case MoveHome:
      row = 0;
      break;
    case MoveEnd:
      row = last;
      break;
    default:
      break;
  }
  return model_->index(std::clamp(row, 0, last));
}

void RowsView::setSelection(const QRect& rect, QItemSelectionModel::SelectionFlags flags) {
  const QModelIndex index = indexAt(rect.topLeft());
  selectionModel()->select(QItemSelection(index, index), flags);
}

QRegion RowsView::visualRegionForSelection(const QItemSelection& selection) const {
  return selection.isEmpty() ? QRegion() : QRegion(viewport()->rect());
}

int RowsView::CellLeft(size_t cell) const {
  int left = kGrid;
  for (size_t i = 0; i < cell && i < cellWidths.size(); ++i) left += WidthOfColumns(cellWidths[i]);
  return left;
}

void RowsView::PaintRows(QPainter& painter, const QRect& part) const {
  QStyleOptionViewItem option;
  initViewItemOption(&option);
  const QModelIndex pointed =
      viewport()->underMouse() ? indexAt(viewport()->mapFromGlobal(QCursor::pos())) : QModelIndex();
  const int end = std::min(model_->rowCount(), Top() + part.bottom() / rowHeight_ + 1);
  for (int row = Top() + std::max(0, part.top()) / rowHeight_; row < end; ++row) {
    const QModelIndex index = model_->index(row);
    option.rect = visualRect(index);
    option.state.setFlag(QStyle::State_MouseOver, index == pointed);
    itemDelegate()->paint(&painter, option, index);
  }
}

void RowsView::paintEvent(QPaintEvent* event) {
  QPainter painter(viewport());
  PaintRows(painter, event->rect());
}

// Another font has another row height.
void RowsView::changeEvent(QEvent* event) {
  QListView::changeEvent(event);
  if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
    scheduleDelayedItemsLayout();
}

}  // namespace tamo
