#pragma once

#include <QString>

#include "records/markupsfile.h"
#include "reports/reportsource.h"

namespace tamo {

// One of the two bids of a comparison.
struct ComparedBid {
  ReportSource source;
  Markups markups;
  QString words;  // "version "as sent" of 2026-11-17 14:02", "the bid as it stands"
};

// The title of the report.
inline constexpr char kCompareTitle[] = "What Changed";

// What lies between two states of a bid: the total, the lines that moved it most, each system that
// changed by quantity, by price or by both, items, markups, adjustment, manhours, rooms and areas.
// The differences sum to that of the total, or a line says what is left. `project` is the line that
// names it.
Report Compare(const ComparedBid& then, const ComparedBid& now, const QString& project);

}  // namespace tamo
