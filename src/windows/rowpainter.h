#pragma once

#include <QStyledItemDelegate>

namespace tamo {

class RowsView;
struct Look;

inline constexpr int kMostPainted = 4000;  // characters of a row
inline constexpr int kTick = 16;           // side of a tick box

// Paints a row of a list: its ground and mark, its tick box, its text and what was found in it.
class RowPainter : public QStyledItemDelegate {
 public:
  explicit RowPainter(RowsView& view);
  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override;

 private:
  void PaintGround(QPainter& painter, const QStyleOptionViewItem& option, int row) const;
  void PaintFound(QPainter& painter, const QRect& place, const QString& text) const;
  void PaintText(QPainter& painter, QRect place, QString text, int row) const;
  void PaintContents(QPainter& painter, const QRect& place, const QString& text, int row) const;
  void PaintBesides(QPainter& painter, QRect& place, int row) const;
  void PaintHeavy(QPainter& painter, const QRect& place, const QString& text) const;
  void PaintCells(QPainter& painter, const QRect& place, const QString& text) const;

  RowsView& view_;
};

}  // namespace tamo
