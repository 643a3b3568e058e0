#pragma once

#include <vector>

#include "plans/countgroups.h"
#include "plans/markedsheets.h"

namespace tamo {

// The sheets with counting circles in named groups, and the group that the next ones belong to.
class GroupSheets : public MarkedSheets {
 public:
  // A name that no group has begins one, in a colour that no other has as long as there are some.
  // False when nothing is left of the name.
  bool ChooseGroup(const QString& name);
  const QString& Group() const { return group_.name; }  // "" when none is chosen
  const QString& GroupColour() const { return group_.colour; }
  // All circles of the chosen group, and its next ones.
  void RecolourGroup(const QString& colour);
  // Those of the plan, and the chosen one.
  std::vector<CountGroup> Groups() const;
  const std::vector<Mark>& Totals() const;  // as they stand on the sheets

 protected:
  void AddToGroup(const std::vector<PagePoint>& places);
  void ForgetGroup() { group_ = {}; }

 private:
  CountGroup group_;
  mutable unsigned totalled_ = 0;  // the revision of the marks that the totals are of
  mutable std::vector<Mark> totals_;
};

}  // namespace tamo
