#pragma once

#include <QAbstractListModel>

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

}  // namespace tamo
