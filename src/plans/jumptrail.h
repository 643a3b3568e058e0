#pragma once

#include <optional>
#include <vector>

namespace tamo {

// A place that is looked at: a page, and what of it stands at the view's top left corner.
struct SheetPlace {
  int page = 1;
  int left = 0;
  int top = 0;
  bool operator==(const SheetPlace&) const = default;
};

// The way somebody jumped through a plan, to go back and forward on it.
class JumpTrail {
 public:
  void Clear();
  // A jump goes away from there. The same place twice is once; what lay ahead is gone.
  void Leave(const SheetPlace& from);
  // Where to go from `now`; none at the end of the way.
  std::optional<SheetPlace> Back(const SheetPlace& now) { return Step(back_, ahead_, now); }
  std::optional<SheetPlace> Forward(const SheetPlace& now) { return Step(ahead_, back_, now); }

 private:
  static std::optional<SheetPlace> Step(std::vector<SheetPlace>& from, std::vector<SheetPlace>& to,
                                        const SheetPlace& now);
  std::vector<SheetPlace> back_;  // the last one at the end
  std::vector<SheetPlace> ahead_;
};

}  // namespace tamo
