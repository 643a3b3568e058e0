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
  PaintText(*painter, text, index.data().toString(), index.row());
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

// The texts at the right end; `place` keeps what is left of it.
void RowPainter::PaintBesides(QPainter& painter, QRect& place, int row) const {
  const int wide = view_.BesideWidth();
  if (!view_.besides || wide == 0) return;
  const QStringList texts = view_.besides(row);
  painter.save();
  painter.setFont(PromptFont());
  painter.setPen(CurrentLook().quiet);
  int left = view_.viewport()->width() - wide;
  place.setRight(left - kGrid);
  for (qsizetype i = 0; i < texts.size() && i < qsizetype(view_.besideWidths.size()); ++i) {
    const int width = view_.WidthOfColumns(view_.besideWidths[size_t(i)]);
    const QRect own(left, place.top(), width - kGrid, place.height());
    painter.drawText(own, Qt::AlignRight | Qt::AlignVCenter | Qt::TextSingleLine, texts[i]);
    left += width;
  }
  painter.restore();
}

// A bold face of the same widths where there is one; else the text twice, hardly apart.
void RowPainter::PaintHeavy(QPainter& painter, const QRect& place, const QString& text) const {
  constexpr int kFlags = Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine;
  QFont heavy = view_.font();
  heavy.setWeight(QFont::DemiBold);
  const auto width = [](const QFont& font) {
    return QFontMetricsF(font).horizontalAdvance(QStringLiteral("0123456789"));
  };
  if (width(heavy) == width(view_.font())) {
    painter.setFont(heavy);
  } else {
    painter.drawText(QRectF(place).translated(0.6, 0), kFlags, text);
  }
  painter.drawText(place, kFlags, text);
}

// Chapters in semibold, what belongs to them set in, a thin line beside it.
void RowPainter::PaintContents(QPainter& painter, const QRect& place, const QString& text,
                               int row) const {
  constexpr int kBlanks = 5;
  const auto levelOf = [this](int at) {
    const ListRows& rows = view_.Model().Rows();
    if (at >= rows.Count()) return 0;
    const QString own = rows.At(at);
    int blanks = 0;
    while (blanks < own.size() && own[blanks] == u' ') ++blanks;
    return blanks / kBlanks;
  };
  const int level = levelOf(row);
  painter.save();
  painter.setPen(CurrentLook().line);
  for (int i = 0; i < level; ++i) {
    const int x = place.left() + (2 * i + 1) * kGrid;
    const bool last = i == level - 1 && levelOf(row + 1) < level;
    painter.drawLine(x, place.top(), x, last ? place.center().y() : place.bottom());
    if (i == level - 1) painter.drawLine(x, place.center().y(), x + kGrid, place.center().y());
  }
  painter.restore();
  painter.setFont(level == 0 ? SectionFont() : view_.font());
  painter.drawText(place.adjusted(level * 2 * kGrid + (level > 0 ? kGrid / 2 : 0), 0, 0, 0),
                   Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, text.trimmed());
}

void RowPainter::PaintText(QPainter& painter, QRect place, QString text, int row) const {
  if (text.size() > kMostPainted) text.truncate(kMostPainted);
  painter.setFont(view_.font());
  PaintFound(painter, place, text);
  const Look& look = CurrentLook();
  painter.setPen(view_.isEnabled() ? look.text : look.quiet);
  if (!view_.cellWidths.empty()) return PaintCells(painter, place, text);
  if (view_.contents) return PaintContents(painter, place, text, row);
  if (view_.isHeavy && view_.isHeavy(row)) return PaintHeavy(painter, place, text);
  const int whole = place.width();
  PaintBesides(painter, place, row);
  if (place.width() < whole)
    text = QFontMetrics(view_.font()).elidedText(text, Qt::ElideRight, place.width());
  const int flags = view_.linesOfRow > 1 ? Qt::AlignVCenter | Qt::TextWordWrap
                                         : Qt::AlignVCenter | Qt::TextSingleLine;
  painter.drawText(place, Qt::AlignLeft | flags, text);
}

}  // namespace tamo
