#pragma once

#include "common/control.h"

namespace tamo {

// The fields of a takeoff line that an area drawn on the plan goes to.
struct AreaFields {
  TextField& units;
  TextField& height;
  TextField& length;
};

// Square feet for the line in work: the height becomes 1 and the length the square feet, of a line
// in square yards (SY) these. Negative ones, of a cut-out, go off the area that stands there and
// was not entered yet, or join those of another cut-out. False when they were not taken; `words`
// says why, or what was made of them.
bool PutArea(const AreaFields& fields, const QString& squareFeet, QString& words);

}  // namespace tamo
