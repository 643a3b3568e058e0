#pragma once

#include <QStringList>

#include "common/control.h"

namespace tamo {

// Makes `rows` of the rows of `list` by changing only those that differ: the selection follows its
// row, the first visible row stays, and nothing is raised.
void ChangeRows(OrderedList& list, const QStringList& rows);

}  // namespace tamo
