#pragma once

#include "plans/mark.h"

namespace tamo {

// What the pointer does on the sheets while no tool is in hand. Places in points on the current
// page.
class FreePointer {
 public:
  virtual ~FreePointer() = default;
  virtual void Press(PagePoint at) = 0;
  virtual void Move(PagePoint at, bool shift) = 0;
  virtual void Release(PagePoint at, bool shift) = 0;
  virtual void LetGo() = 0;  // a tool comes
};

}  // namespace tamo
