#pragma once

#include "common/kit.h"
#include "plans/ostcontrols.h"

namespace tamo {

// Where plans are picked: drives, folders and plans on Frame1, and the file that remembers where
// they were last taken from.
class PlanBrowser {
 public:
  PlanBrowser(const Kit& kit, OstControls& form);

  void Save();
  void Load();
  // At the folders of Load, or at the program folder.
  void Start();

 private:
  const Kit kit_;
  OstControls& form_;
};

}  // namespace tamo
