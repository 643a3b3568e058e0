#pragma once

#include <vector>

#include "common/kit.h"
#include "plans/ostcontrols.h"
#include "plans/planjumps.h"
#include "plans/sheetbook.h"

namespace tamo {

// The strip in which a sheet is asked for by its number, its page or its name, with the sheets that
// it may be under it.
class PlanGoTo {
 public:
  PlanGoTo(const Kit& kit, OstControls& form, SheetBook& book, PlanJumps& jumps);

  void Open();
  void Close();  // the focus goes back to the plan
  void BookNews();

 private:
  void Fill();
  void Enter();
  void Walk(int step);
  void Go(int row);
  bool TakeKey(const Key& key);

  const Kit kit_;
  OstControls& form_;
  SheetBook& book_;
  PlanJumps& jumps_;
  std::vector<int> pages_;  // of the rows
};

}  // namespace tamo
