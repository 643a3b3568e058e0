#pragma once

#include <QStringList>
#include <vector>

#include "schedule/schedulerows.h"

namespace tamo {

// The finish codes that a cell names: "PT-1/PT-2" is two, "P1,P2" is two. Dashes, N/A and NONE are
// none.
QStringList CodesOf(const QString& cell);

// Those of one of a row's ten cells (from 0), its ceiling without the height.
QStringList FinishesOf(const FinishRow& row, size_t cell);

// All codes of a schedule's floors, bases, walls and ceilings, each once, in the order in which
// they first stand.
QStringList CodesOf(const std::vector<FinishRow>& rows);

}  // namespace tamo
