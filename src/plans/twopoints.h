#pragma once

#include <QString>
#include <optional>

#include "plans/sheetfit.h"

namespace tamo {

// Two places that a new and an old sheet both have, given one after the other: the first on the new
// and on the old sheet, then the second on both. They say how the old sheet lies over the new one.
class TwoPoints {
 public:
  void Ask();  // for the first one
  void Leave();
  bool Asked() const { return asked_ >= 0; }           // until Leave
  bool OnOldSheet() const { return asked_ % 2 == 1; }  // the next one, while they are asked for
  // Takes the next one, in points of its own sheet; none while they are not asked for. The last
  // gives how the sheets lie; where the places are of no use all four are asked for again.
  std::optional<SheetFit> Take(PagePoint at);
  QString Words() const;  // what to press next; "" while they are not asked for

 private:
  int asked_ = -1;   // which of the four; -1: none
  PagePoint at_[4];  // new, old, new, old
  QString problem_;  // why the last ones were of no use
};

}  // namespace tamo
