#pragma once

#include <QString>
#include <optional>
#include <vector>

#include "plans/mark.h"
#include "plans/marktie.h"
#include "plans/takeofflines.h"

namespace tamo {

// A mark with the line of the takeoff that it was entered into, held against that line.
struct AccountedMark {
  std::optional<MarkTie> tie;  // nothing: it was not entered, or what is kept can't be read
  QString flag;                // what is wrong, in words; "" when mark and line agree
};

// In the order of `marks`.
std::vector<AccountedMark> AccountOf(const std::vector<Mark>& marks, TakeoffLines& lines);

// The number that a mark says, as it stands before the unit.
QString SaidBy(const Mark& mark);

}  // namespace tamo
