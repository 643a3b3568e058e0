#pragma once

#include <memory>

#include "reports/copyrows.h"
#include "reports/markupfactors.h"
#include "reports/reportsource.h"

namespace tamo {

// A copy of the takeoff, room by room and area by area, with the materials and the labor under each
// takeoff line.
struct TakeoffCopy : Report {
  std::shared_ptr<const CopyRows> rows;  // `lines` are made by it
  double total = 0;                      // dollars of all detail lines; Office Copy only
  double labor = 0;                      // of the labor lines among them
  double material = 0;                   // of the others
};

// For the crew: a rule to tick off before each line, no dollars.
TakeoffCopy FieldCopy(const ReportSource& source);
// For the project manager: with dollars and the manhours of the project.
TakeoffCopy OfficeCopy(const ReportSource& source, const Markups& markups);

}  // namespace tamo
