#pragma once

#include <vector>

#include "records/keptschedule.h"
#include "schedule/plannedrooms.h"
#include "schedule/schedulerows.h"

namespace tamo {

// What a schedule has that differs from the kept one, room by room (by number, or by name where
// there is none), a sentence each: cells that changed, rooms that are new, and, when it is a
// revision of the kept one, rooms that are gone. Empty when they have no room in common.
QStringList ChangesOf(const KeptSchedule& kept, const std::vector<FinishRow>& rows);

// The kept schedule once these rows were made into rooms: a revision takes the place of the kept
// one; rows of another part of the building stand behind it.
KeptSchedule KeptAfter(const KeptSchedule& kept, const std::vector<FinishRow>& rows,
                       const RoomPlan& plan);

}  // namespace tamo
