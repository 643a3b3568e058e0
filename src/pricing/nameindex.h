#pragma once

#include <QHash>
#include <QString>

#include "common/control.h"

namespace tamo {

// Finds a name in a long list whatever its case, without walking the list at each Enter.
class NameIndex {
 public:
  explicit NameIndex(const OrderedList& list) : list_(list) {}

  // The first row that equals `name` when both are upper-cased; -1.
  int Find(const QString& name);

 private:
  const OrderedList& list_;
  QHash<QString, int> rows_;
  unsigned revision_ = 0;
};

}  // namespace tamo
