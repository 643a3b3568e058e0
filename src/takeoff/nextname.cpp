#include "takeoff/nextname.h"

#include "common/numbers.h"

namespace tamo {

QString NextName(const QString& name) {
  const QString next = NumberText(Value(name.right(2)) + 1).right(2);
  return name.size() >= next.size() ? name.chopped(next.size()) + next : next;
}

}  // namespace tamo
