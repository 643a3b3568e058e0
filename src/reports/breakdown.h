#pragma once

#include <QString>

#include "reports/markupfactors.h"
#include "reports/reportsource.h"
#include "reports/rollup.h"

namespace tamo {

// The figures of the breakdown and what it leaves out.
struct BreakFigures {
  ProjectRollUp roll;
  double unitPriced = 0;          // dollars of the unit-priced items, which are no part of the bid
  QStringList unitItems;          // their names
  QStringList withCents;          // the entries that bring cents into the figures, in words
  bool bottomLineListed = false;  // the items were listed behind an adjustment
};

// The project roll-up from the files. With no takeoff at all every figure is 0. `adjustment` is the
// text that the reports hold and takes that of the project's file, when there is one.
BreakFigures MakeBreak(const ReportSource& source, const Markups& markups, QString& adjustment);

// The whole bid by kind of cost. `table` gets the same figures; may be null.
Report BreakDown(const BreakFigures& figures, TableSink* table = nullptr);

}  // namespace tamo
