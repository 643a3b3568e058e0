#pragma once

#include "common/form.h"

namespace tamo {

// The working forms as the menus of both shells ask for them, after the guards. `owner` is the
// window that they stand above.
class Desks {
 public:
  virtual ~Desks() = default;
  virtual void ToggleUnitPricing(Form* owner) = 0;
  virtual void TogglePricing(Form* owner) = 0;
  virtual void LoadMarkups() = 0;
  virtual void EnterSchedule(Form* owner) = 0;
  virtual void TakeOffSchedule(Form* owner) = 0;
  virtual void ShowFreeItems(Form* owner) = 0;
  virtual void ShowBottomLine(Form* owner) = 0;
  virtual void ShowAdjustment(Form* owner) = 0;
  virtual void ToggleDocs(Form* owner) = 0;
};

}  // namespace tamo
