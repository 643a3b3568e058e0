#pragma once

#include <vector>

#include "schedule/sheetdrawing.h"

namespace tamo {

// All rules at one place: one line of a table's ruling, with its gaps.
struct RuleLevel {
  double at = 0;
  double covered = 0;  // length that is drawn
  double from = 0;
  double to = 0;
};

// The levels of the rules along (or across) the drawing inside a stretch of them, in order. Double
// lines are one.
std::vector<RuleLevel> LevelsOf(const std::vector<Rule>& rules, bool along, double from, double to);

// Takes away the lines that strike a text through.
void DropStrikes(SheetDrawing& drawing);

}  // namespace tamo
