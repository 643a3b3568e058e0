#pragma once

#include <QString>
#include <vector>

#include "reports/reportsource.h"

namespace tamo {

class SystemsAhead;
class TakeoffVisitor;

// One system of the project with the sum of its takeoff.
struct MergedRow {
  QString name;
  QString quantity;  // as typed for a single line, number text for a sum
  QString units;     // of the first line that names the system
  double value = 0;  // of `quantity`
};

// All rooms, then all areas, merged into one list of systems in order of first appearance. Names
// are told apart exactly, by case, too. Linear in the lines of the project. `systems` look at the
// sheets that are read ahead, `also` sees every line on the way.
std::vector<MergedRow> Calculate(const ReportSource& source, SystemsAhead* systems = nullptr,
                                 TakeoffVisitor* also = nullptr);

// `each` for every row, telling the progress of the report.
template <typename Each>
void ForEachRow(const ReportSource& source, const std::vector<MergedRow>& rows, Each each) {
  const int all = static_cast<int>(rows.size());
  int done = 0;
  for (const MergedRow& row : rows) {
    each(row);
    TellProgress(source, ++done, all);
  }
}

}  // namespace tamo
