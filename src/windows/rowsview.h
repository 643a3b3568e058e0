#pragma once

#include <QAbstractListModel>
#include <QListView>

#include "common/control.h"

namespace tamo {

// The rows of a list as its widget shows them: a copy (shared, so cheap) taken over when the list's
// rows change.
class RowsModel : public QAbstractListModel {
 public:
  explicit RowsModel(const OrderedList& list) : list_(list) {}

  // True when the rows were other ones.
  bool TakeOver();
  const ListRows& Rows() const { return rows_; }
  int LongestRow() const { return longest_; }  // characters

  int rowCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;

 private:
  const OrderedList& list_;
  ListRows rows_;
  int longest_ = 0;
  unsigned revision_ = ~0U;
};

// A list of text rows. Rows are all of one height, so tens of thousands scroll as ten do. The
// selected row is marked by a bar at its left edge and a faint ground; the row that the keys have
// walked to, by a frame.
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

  // A quiet text that stands in a list without rows and says what to do.
  void SetEmptyText(const QString& text);
  // Rows that hold this text are marked; "" for none.
  void SetFound(const QString& text);
  const QString& Found() const { return found_; }

  QSize sizeHint() const override;
  int linesOfRow = 1;  // a longer row is wrapped into so many lines; 1 scrolls sideways instead
  int wantedRows = 8;
  int wantedColumns = 24;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  RowsModel* model_;
  int selected_ = -1;
  int walked_ = -1;
  QString emptyText_;
  QString found_;
};

}  // namespace tamo
