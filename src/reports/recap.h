#pragma once

#include "reports/markupfactors.h"
#include "reports/reportsource.h"

namespace tamo {

// The estimator's main result: a block for each system, then subtotal, bottom line items,
// adjustment and total. `detailed` gives every markup of a row its own line. `adjustment` is the
// text that the reports hold and takes the one of the project's file, when there is one. Texts
// wider than their column make their line longer.
Report MinimalRecapSheet(const ReportSource& source, const Markups& markups, bool detailed,
                         QString& adjustment);

// A sheet with lines for each material: nothing is rounded to three decimals, there is no least
// charge, and each material carries its own markups.
Report DetailedRecapSheet(const ReportSource& source, const Markups& markups);

}  // namespace tamo
