#pragma once

#include <QListView>
#include <functional>
#include <vector>

#include "windows/rowsmodel.h"

namespace tamo {

// A list of text rows. Rows are all of one height, so where a row stands is a multiplication: five
// million rows come up and scroll as ten do, and nothing is laid out. The selected row is marked by
// a bar at its left edge and a faint ground; the row that the keys have walked to, by a frame.
class RowsView : public QListView {
 public:
  explicit RowsView(const OrderedList& list, QWidget* parent = nullptr);

  RowsModel& Model() { return *model_; }
  void UseFixedColumns();  // a face of equal widths
  int RowHeight() const;
  int WidthOfColumns(int characters) const;

  int Selected() const { return selected_; }
  void SetSelected(int row);  // -1 for none

  int Walked() const { return walked_; }  // the row the keys have walked to, -1 for none
  void SetWalked(int row);
  QRect TickRect(int row) const;  // in the viewport

  // Rows that hold this text are marked; "" for none.
  void SetFound(const QString& text);
  const QString& Found() const { return found_; }

  QRect visualRect(const QModelIndex& index) const override;
  QModelIndex indexAt(const QPoint& point) const override;
  void scrollTo(const QModelIndex& index, ScrollHint hint = EnsureVisible) override;
  void doItemsLayout() override;

  QSize sizeHint() const override;
  int linesOfRow = 1;  // a longer row is wrapped into so many lines; 1 scrolls sideways instead
  // Rows whose texts have tabs stand in columns so many characters wide; the last takes the rest.
  std::vector<int> cellWidths;
  int CellLeft(size_t cell) const;  // in the viewport, before scrolling
  // Quiet texts at the right end of a row, each in a column so many characters wide. They give way
  // where the rows have little room.
  std::function<QStringList(int row)> besides;
  std::vector<int> besideWidths;
  int BesideWidth() const;  // pixels of all of them; 0 where there is no room for them
  // Rows that the eye looks for: painted with weight, their columns where they are.
  std::function<bool(int row)> isHeavy;
  // Rows are the contents of a book: five blanks in front for each level.
  bool contents = false;
  int wantedRows = 8;
  int wantedColumns = 24;

 protected:
  int horizontalOffset() const override;
  int verticalOffset() const override;
  bool isIndexHidden(const QModelIndex&) const override { return false; }
  QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
  void setSelection(const QRect& rect, QItemSelectionModel::SelectionFlags flags) override;
  QRegion visualRegionForSelection(const QItemSelection& selection) const override;
  void updateGeometries() override;
  void scrollContentsBy(int dx, int dy) override;
  void paintEvent(QPaintEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  int Top() const;        // the first visible row
  int WholeRows() const;  // that stand in the viewport
  int ContentsWidth() const;
  void PaintRows(QPainter& painter, const QRect& part) const;

  RowsModel* model_;
  int rowHeight_ = 1;  // of the present font
  int selected_ = -1;
  int walked_ = -1;
  QString found_;
};

}  // namespace tamo
