#pragma once

#include "reports/reportsource.h"

namespace tamo {

// The architect's finish schedule that the project keeps against its takeoff: rooms of the schedule
// that are not taken off, finishes and rooms of the takeoff that the schedule does not name, and
// what its last revision changed.
Report ScheduleCheck(const ReportSource& source);

}  // namespace tamo
