#include "schedule/mergedcells.h"

#include <algorithm>
#include <cmath>

namespace tamo {
namespace {

constexpr double kNear = 2.7;  // points: double lines

bool EndsRows(const std::vector<double>& across, double at) {
  return std::any_of(across.begin(), across.end(),
                     [at](double one) { return std::abs(one - at) <= 1; });
}

bool RuleAt(const SheetDrawing& drawing, double x, double y) {
  return std::any_of(drawing.rules.begin(), drawing.rules.end(), [=](const Rule& rule) {
    return rule.along && std::abs(rule.at - y) <= kNear && rule.from <= x && rule.to >= x;
  });
}

// The upper and the lower cell are one.
void Share(ScheduleCell& upper, ScheduleCell& lower) {
  if (upper.text.isEmpty() && lower.text.isEmpty()) return;
  if (upper.text.isEmpty()) {
    upper = lower;
  } else if (lower.text.isEmpty()) {
    lower = upper;
  }
  upper.Add(Doubt::Merged);
  lower.Add(Doubt::Merged);
}

}  // namespace

void ShareMergedCells(ScheduleTable& table, const SheetDrawing& drawing,
                      const std::vector<double>& across) {
  std::vector<std::pair<size_t, size_t>> merged;  // upper row and column
  for (size_t i = 0; i + 1 < table.rows.size(); ++i) {
    const double y = table.rows[i].bottom;
    if (std::abs(table.rows[i + 1].top - y) > 1 || !EndsRows(across, y)) continue;
    for (size_t c = 0; c < table.columns.size(); ++c) {
      const double x = (table.columns[c].left + table.columns[c].right) / 2;
      if (!RuleAt(drawing, x, y)) merged.push_back({i, c});
    }
  }
  for (const auto& [row, column] : merged) {
    Share(table.rows[row].cells[column], table.rows[row + 1].cells[column]);
  }
  for (auto at = merged.rbegin(); at != merged.rend(); ++at) {
    Share(table.rows[at->first].cells[at->second], table.rows[at->first + 1].cells[at->second]);
  }
}

}  // namespace tamo
