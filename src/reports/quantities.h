#pragma once

#include "reports/reportsource.h"

namespace tamo {

// Every system of the project with its total takeoff, also one of 0, as merged and not rounded.
Report Quantities(const ReportSource& source);

}  // namespace tamo
