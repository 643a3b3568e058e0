#include "windows/rowsmodel.h"

namespace tamo {

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

}  // namespace tamo
