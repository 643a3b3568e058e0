#pragma once

#include <QStringList>
#include <vector>

#include "plans/planengine.h"

namespace tamo::test {

// An engine without PDFs: any file is a plan, all white, and its marks are lines of text at its
// end.
class FakePlanEngine : public PlanEngine {
 public:
  std::shared_ptr<EnginePlan> NewPlan(std::shared_ptr<PlanSource> source) override;

  // What a test wants of the next plans and saves.
  int pages = 1;
  PageSize size;
  std::vector<QString> words;  // of each page: a line that stands on it
  int openError = 0;           // not 0: plans fail to open with it
  int updateError = 0;         // not 0: the saving of marks fails with it

  QStringList calls;  // "open" and "update", in order; written by the plan's thread in a call
};

}  // namespace tamo::test
