#pragma once

#include <QString>
#include <QStringList>
#include <map>
#include <vector>

#include "schedule/scheduletable.h"

namespace tamo {

// What the sheet itself says of its finish codes, by the code in capitals: "CPT-1" is "BROADLOOM
// CARPET, MILL A". Taken from the legends and material schedules among the tables of a sheet; the
// first word on a code stands.
using Legend = std::map<QString, QString>;

Legend LegendOf(const std::vector<ScheduleTable>& tables);

}  // namespace tamo
