#pragma once

#include <QString>
#include <vector>

#include "plans/mark.h"

namespace tamo {

// What the marks of one system come to, in the unit of its lines.
struct MarkTotal {
  QString system;  // "" for marks that were not entered
  QString unit;
  QString colour;  // of its first mark
  double sheet = 0;
  double plan = 0;
};

// Of all marks but legends, by system; those that were not entered come last. `page` is the sheet.
// A mark counts with what it says now, and its height where its entry had one.
std::vector<MarkTotal> TotalsOf(const std::vector<Mark>& marks, int page);

// "120.0 SF".
QString TotalInWords(double quantity, const QString& unit);
QString SystemInWords(const MarkTotal& total);

}  // namespace tamo
