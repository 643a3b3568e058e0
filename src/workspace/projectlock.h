#pragma once

#include "common/kit.h"
#include "workspace/projecthold.h"

namespace tamo {

// The lock of the open project: it keeps the estimator from changing a bid by mistake. Anyone may
// take it off again.
class ProjectLock {
 public:
  ProjectLock(const Kit& kit, ProjectHold& hold) : kit_(kit), hold_(hold) {}

  // The menu entry: locks or unlocks the open project; without one it does nothing.
  void LockProject();
  void SaveLocked();
  void LoadLocked();
  // True when the project may be changed; otherwise says that it is locked, or who has it open.
  bool NeedUnlocked();

 private:
  const Kit kit_;
  ProjectHold& hold_;
};

}  // namespace tamo
