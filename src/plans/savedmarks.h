#pragma once

#include <QHash>
#include <vector>

#include "plans/groupsheets.h"
#include "plans/planengine.h"

namespace tamo {

// The marks of this program as they stand in the file of a plan, and what a save has to change so
// that those on the sheets stand there. The totals of counting groups stand beside the others and
// are made anew from the circles whenever these are saved.
class SavedMarks {
 public:
  void Read(const std::vector<Mark>& marks);  // these stand in the file, totals among them
  void Saved(const GroupSheets& sheets);      // those of the sheets do now
  MarkChanges ChangesTo(const GroupSheets& sheets) const;
  // The changes as they are to be made where another program has written to the plan: its circles
  // count, too, and numbers that both gave are told apart. `sheets` have the marks of both.
  MarkChanges ChangesAnew(const MarkChanges& changes, const GroupSheets& sheets) const;

 private:
  void AddTotals(const GroupSheets& sheets, MarkChanges& changes) const;

  QHash<QString, Mark> marks_;  // by name
  std::vector<Mark> totals_;
};

}  // namespace tamo
