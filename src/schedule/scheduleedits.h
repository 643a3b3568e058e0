#pragma once

#include <QString>
#include <map>
#include <set>
#include <tuple>
#include <utility>
#include <vector>

#include "schedule/schedulerows.h"

namespace tamo {

// What was changed of a schedule by hand. It stays when a further part is added or a column gets
// another meaning.
class ScheduleEdits {
 public:
  void Correct(const FinishRow& row, int cell, const QString& text);
  void LeaveOut(const FinishRow& row);
  void Clear();

  void ApplyTo(std::vector<FinishRow>& rows) const;

 private:
  std::map<std::tuple<int, int, int>, QString> corrected_;  // by part, row and cell
  std::set<std::pair<int, int>> leftOut_;                   // by part and row
};

}  // namespace tamo
