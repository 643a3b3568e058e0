#pragma once

#include "plans/mark.h"
#include "plans/plankey.h"

namespace tamo {

// How far a step of the arrows goes on the sheet, in points of paper.
inline constexpr double kCoarseStep = 9;  // an eighth of an inch
inline constexpr double kFineStep = 0.5;  // a 144th, with Ctrl

// The way of an arrow: 1 to the right or down. Nothing for any other key.
inline PagePoint DirectionOf(PlanKey key) {
  switch (key) {
    case PlanKey::Left:
      return {-1, 0};
    case PlanKey::Right:
      return {1, 0};
    case PlanKey::Up:
      return {0, -1};
    case PlanKey::Down:
      return {0, 1};
    default:
      return {0, 0};
  }
}

}  // namespace tamo
