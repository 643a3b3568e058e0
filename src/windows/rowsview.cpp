#include "windows/rowsview.h"

#include <QApplication>
#include <QPainter>
#include <QScrollBar>
#include <QStyledItemDelegate>
#include <algorithm>

#include "windows/look.h"
#include "windows/tamostyle.h"

namespace tamo {
namespace {

constexpr int kMostPainted = 4000;  // characters of a row
constexpr int kBar = 4;             // the mark at the left edge of the selected row
constexpr int kTick = 16;           // side of a tick box

class RowPainter : public QStyledItemDelegate {
 public:
  explicit RowPainter(RowsView& view) : QStyledItemDelegate(&view), view_(view) {}

  QSize sizeHint(const QStyleOptionViewItem&, const QModelIndex&) const override {
    const int columns = std::min(view_.Model().LongestRow(), kMostPainted);
    if (view_.linesOfRow > 1) return {0, view_.RowHeight()};
    return {view_.WidthOfColumns(columns), view_.RowHeight()};
  }

  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override {
    const Look& look = CurrentLook();
    const QRect& row = option.rect;
    const bool selected = index.row() == view_.Selected();
    painter->save();
    if (selected) {
      painter->fillRect(row, look.accentGround);
      painter->fillRect(QRect(row.topLeft(), QSize(kBar, row.height())), look.accent);
    } else if ((option.state & QStyle::State_MouseOver) != 0 && view_.cursor() != Qt::ArrowCursor) {
      painter->fillRect(row, look.accentGround);
    }
    QRect text = row.adjusted(kGrid, 0, 0, 0);
    if (index.data(Qt::CheckStateRole).isValid()) {
      PaintTickBox(*painter, view_.TickRect(index.row()),
                   index.data(Qt::CheckStateRole).toInt() == Qt::Checked, look);
      text.setLeft(view_.TickRect(index.row()).right() + kGrid);
    }
    PaintText(*painter, text, index.data().toString(), look);
    if (index.row() == view_.Walked()) {
      painter->setPen(QPen(look.accent, 2));
      painter->drawRect(row.adjusted(1, 1, -1, -1));
    }
    painter->restore();
  }

 private:
  void PaintText(QPainter& painter, const QRect& place, QString text, const Look& look) const {
    if (text.size() > kMostPainted) text.truncate(kMostPainted);
    painter.setFont(view_.font());
    const QString& found = view_.Found();
    if (!found.isEmpty()) {
      const QFontMetrics metrics(view_.font());
      for (qsizetype at = text.indexOf(found, 0, Qt::CaseInsensitive); at >= 0;
           at = text.indexOf(found, at + found.size(), Qt::CaseInsensitive)) {
        const int left = place.left() + metrics.horizontalAdvance(text.left(at));
        const int width = metrics.horizontalAdvance(text.mid(at, found.size()));
        painter.fillRect(QRect(left, place.top() + 2, width, place.height() - 4), look.notice);
        painter.fillRect(QRect(left, place.bottom() - 3, width, 2), look.noticeLine);
      }
    }
    painter.setPen(view_.isEnabled() ? look.text : look.quiet);
    const int flags = view_.linesOfRow > 1 ? Qt::AlignVCenter | Qt::TextWordWrap
                                           : Qt::AlignVCenter | Qt::TextSingleLine;
    painter.drawText(place, Qt::AlignLeft | flags, text);
  }

  RowsView& view_;
};

}  // namespace

bool RowsModel::TakeOver() {
  if (revision_ == list_.RowsRevision()) return false;
  revision_ = list_.RowsRevision();
  beginResetModel();
  rows_ = list_.SharedRows();
  longest_ = rows_.Longest();
  endResetModel();
  return true;
}

int RowsModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : rows_.Count();
}

QVariant RowsModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid() || index.row() >= rows_.Count()) return {};
  if (role == Qt::DisplayRole) return rows_.At(index.row());
  if (role == Qt::CheckStateRole) {
    const auto* checks = dynamic_cast<const CheckList*>(&list_);
    if (checks != nullptr) return checks->Ticked(index.row()) ? Qt::Checked : Qt::Unchecked;
  }
  return {};
}

RowsView::RowsView(const OrderedList& list, QWidget* parent)
    : QListView(parent), model_(new RowsModel(list)) {
  model_->setParent(this);
  setModel(model_);
  setItemDelegate(new RowPainter(*this));
  setUniformItemSizes(true);
  setLayoutMode(QListView::SinglePass);
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

void RowsView::SetEmptyText(const QString& text) {
  emptyText_ = text;
  viewport()->update();
}

void RowsView::SetFound(const QString& text) {
  if (found_ == text) return;
  found_ = text;
  viewport()->update();
}

QSize RowsView::sizeHint() const {
  const int frame = 2 * (frameWidth() + 2);
  return {WidthOfColumns(wantedColumns) + frame + verticalScrollBar()->sizeHint().width(),
          wantedRows * RowHeight() + frame};
}

void RowsView::paintEvent(QPaintEvent* event) {
  QListView::paintEvent(event);
  if (model_->Rows().Count() != 0 || emptyText_.isEmpty()) return;
  QPainter painter(viewport());
  painter.setPen(CurrentLook().quiet);
  painter.setFont(QApplication::font());
  painter.drawText(viewport()->rect().adjusted(2 * kGrid, 2 * kGrid, -2 * kGrid, -2 * kGrid),
                   Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap, emptyText_);
}

// A uniform row height is remembered by the view; another font needs another one.
void RowsView::changeEvent(QEvent* event) {
  QListView::changeEvent(event);
  if (event->type() == QEvent::FontChange) scheduleDelayedItemsLayout();
}

}  // namespace tamo
