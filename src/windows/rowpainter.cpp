#include "windows/rowpainter.h"

#include <QPainter>

#include "windows/look.h"
#include "windows/rowsview.h"
#include "windows/tamostyle.h"

namespace tamo {
namespace {

constexpr int kBar = 4;  // the mark at the left edge of the selected row

}  // namespace

RowPainter::RowPainter(RowsView& view) : QStyledItemDelegate(&view), view_(view) {}

void RowPainter::paint(QPainter* painter, const QStyleOptionViewItem& option,
                       const QModelIndex& index) const {
  const Look& look = CurrentLook();
  const QRect& row = option.rect;
  painter->save();
  PaintGround(*painter, option, index.row());
  QRect text = row.adjusted(kGrid, 0, 0, 0);
  const QVariant ticked = index.data(Qt::CheckStateRole);
  if (ticked.isValid()) {
    const QRect box = view_.TickRect(index.row());
    PaintTickBox(*painter, box, ticked.toInt() == Qt::Checked, look);
    text.setLeft(box.right() + kGrid);
  }
  PaintText(*painter, text, index.data().toString());
  if (index.row() == view_.Walked()) {
    painter->setPen(QPen(look.accent, 2));
    painter->drawRect(row.adjusted(1, 1, -1, -1));
  }
  painter->restore();
}

void RowPainter::PaintGround(QPainter& painter, const QStyleOptionViewItem& option, int row) const {
  const Look& look = CurrentLook();
  if (row == view_.Selected()) {
    painter.fillRect(option.rect, look.accentGround);
    painter.fillRect(QRect(option.rect.topLeft(), QSize(kBar, option.rect.height())), look.accent);
  } else if ((option.state & QStyle::State_MouseOver) != 0 && view_.cursor() != Qt::ArrowCursor) {
    painter.fillRect(option.rect, look.accentGround);
  }
}

void RowPainter::PaintFound(QPainter& painter, const QRect& place, const QString& text) const {
  const QString& found = view_.Found();
  if (found.isEmpty()) return;
  const Look& look = CurrentLook();
  const QFontMetrics metrics(view_.font());
  for (qsizetype at = text.indexOf(found, 0, Qt::CaseInsensitive); at >= 0;
       at = text.indexOf(found, at + found.size(), Qt::CaseInsensitive)) {
    const int left = place.left() + metrics.horizontalAdvance(text.left(at));
    const int width = metrics.horizontalAdvance(text.mid(at, found.size()));
    painter.fillRect(QRect(left, place.top() + 2, width, place.height() - 4), look.notice);
    painter.fillRect(QRect(left, place.bottom() - 3, width, 2), look.noticeLine);
  }
}

void RowPainter::PaintCells(QPainter& painter, const QRect& place, const QString& text) const {
  const QStringList cells = text.split(u'\t');
  const QFontMetrics metrics(view_.font());
  for (qsizetype i = 0; i < cells.size(); ++i) {
    const auto cell = size_t(i);
    const int left = place.left() + view_.CellLeft(cell) - view_.CellLeft(0);
    const bool last = cell >= view_.cellWidths.size();
    const int right = last ? place.right() : place.left() + view_.CellLeft(cell + 1) - 2 * kGrid;
    const QRect own(left, place.top(), std::max(0, right - left), place.height());
    painter.drawText(own, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                     metrics.elidedText(cells[i], Qt::ElideRight, own.width()));
  }
}

void RowPainter::PaintText(QPainter& painter, const QRect& place, QString text) const {
  if (text.size() > kMostPainted) text.truncate(kMostPainted);
  painter.setFont(view_.font());
  PaintFound(painter, place, text);
  const Look& look = CurrentLook();
  painter.setPen(view_.isEnabled() ? look.text : look.quiet);
  if (!view_.cellWidths.empty()) return PaintCells(painter, place, text);
  const int flags = view_.linesOfRow > 1 ? Qt::AlignVCenter | Qt::TextWordWrap
                                         : Qt::AlignVCenter | Qt::TextSingleLine;
  painter.drawText(place, Qt::AlignLeft | flags, text);
}

}  // namespace tamo
