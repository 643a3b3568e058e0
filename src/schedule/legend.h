#pragma once

#include <QString>
#include <QStringList>
#include <map>
#include <vector>

#include "plans/pagecontent.h"
#include "schedule/scheduletable.h"

namespace tamo {

// What the sheet itself says of its finish codes, by the code in capitals: "CPT-1" is "BROADLOOM
// CARPET, MILL A". Taken from the legends and material schedules among the tables of a sheet; the
// first word on a code stands.
using Legend = std::map<QString, QString>;

Legend LegendOf(const std::vector<ScheduleTable>& tables);

// What stands right of each of the codes, anywhere on the sheet but in the `schedule` itself: for
// keys without heads and lists of abbreviations.
Legend LegendBeside(const PageContent& page, const QStringList& codes,
                    const std::vector<ScheduleTable>& schedule);

}  // namespace tamo
