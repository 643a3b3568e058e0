#include "takeoff/listchange.h"

#include <algorithm>

namespace tamo {

void ChangeRows(OrderedList& list, const QStringList& rows) {
  const QStringList before = list.Rows();
  const int old = static_cast<int>(before.size());
  const int fresh = static_cast<int>(rows.size());
  const int most = std::min(old, fresh);
  int head = 0;
  while (head < most && before[head] == rows[head]) ++head;
  int tail = 0;
  while (tail < most - head && before[old - 1 - tail] == rows[fresh - 1 - tail]) ++tail;
  const int common = std::min(old, fresh) - head - tail;
  for (int i = head; i < head + common; ++i) list.SetRow(i, rows[i]);
  for (int i = old - tail; i > head + common; --i) list.Remove(i - 1);
  for (int i = head + common; i < fresh - tail; ++i) list.Insert(i, rows[i]);
}

}  // namespace tamo
