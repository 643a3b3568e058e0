#pragma once

#include "common/kit.h"

namespace tamo {

// The lock of the open project: it keeps the estimator from changing a bid by mistake. Anyone may
// take it off again.
class ProjectLock {
 public:
  explicit ProjectLock(const Kit& kit) : kit_(kit) {}

  // The menu entry: locks or unlocks the open project; without one it does nothing.
  void LockProject();
  void SaveLocked();
  void LoadLocked();
  // True when the project may be changed; otherwise says that it is locked.
  bool NeedUnlocked() const;

 private:
  const Kit kit_;
};

}  // namespace tamo
