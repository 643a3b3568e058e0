#include "schedule/scheduleedits.h"

#include <algorithm>

namespace tamo {

void ScheduleEdits::Correct(const FinishRow& row, int cell, const QString& text) {
  corrected_[{row.part, row.row, cell}] = text;
}

void ScheduleEdits::LeaveOut(const FinishRow& row) {
  leftOut_.insert({row.part, row.row});
}

void ScheduleEdits::Clear() {
  corrected_.clear();
  leftOut_.clear();
}

void ScheduleEdits::ApplyTo(std::vector<FinishRow>& rows) const {
  rows.erase(std::remove_if(rows.begin(), rows.end(),
                            [this](const FinishRow& row) {
                              return leftOut_.count({row.part, row.row}) != 0;
                            }),
             rows.end());
  for (FinishRow& row : rows) {
    for (int cell = 0; cell < kScheduleCells; ++cell) {
      const auto found = corrected_.find({row.part, row.row, cell});
      if (found == corrected_.end()) continue;
      row.cells[size_t(cell)] = found->second;
      row.doubts[size_t(cell)].clear();
    }
  }
}

}  // namespace tamo
