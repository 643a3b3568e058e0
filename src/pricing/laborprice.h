#pragma once

#include "common/desk.h"
#include "pricing/markupcontrols.h"
#include "pricing/materialcontrols.h"
#include "pricing/systemblocks.h"
#include "pricing/systemcontrols.h"

namespace tamo {

// The price that is estimated from labor and material, and the part of the form that is shown for
// it.
class LaborPrice {
 public:
  LaborPrice(Desk& desk, SystemControls& system, MaterialControls& material,
             const MarkupControls& markups, const SystemBlocks& blocks)
      : desk_(desk), system_(system), material_(material), markups_(markups), blocks_(blocks) {}

  // Shows the sum of the materials. A conversion number of 0 brings its material up, puts the focus
  // on the number and raises a RunTimeFailure that names it; the sum of those before it is shown.
  void MakeEUP();
  // The same for a system that has just been read: it opens whatever its numbers are.
  void ShowAsFarAsItGoes();

  void Show();
  void Hide();
  void HideAmount();  // a fixed price stands in its place

 private:
  void BringUp(int place, bool labor);

  Desk& desk_;
  SystemControls& system_;
  MaterialControls& material_;
  const MarkupControls& markups_;
  const SystemBlocks& blocks_;
};

}  // namespace tamo
