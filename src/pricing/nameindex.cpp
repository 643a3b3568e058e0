#include "pricing/nameindex.h"

namespace tamo {

int NameIndex::Find(const QString& name) {
  if (revision_ != list_.RowsRevision()) {
    rows_.clear();
    rows_.reserve(list_.Count());
    for (int row = list_.Count() - 1; row >= 0; --row) rows_[list_.Row(row).toUpper()] = row;
    revision_ = list_.RowsRevision();
  }
  return rows_.value(name.toUpper(), -1);
}

}  // namespace tamo
