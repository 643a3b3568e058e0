#pragma once

#include "plans/planengine.h"

namespace tamo {

// The engine MuPDF, working in this process. The memory of all its plans together is limited
// (MuPdfContexts::SetMemoryLimit).
class MuPdfEngine : public PlanEngine {
 public:
  std::shared_ptr<EnginePlan> NewPlan(std::shared_ptr<PlanSource> source) override;
};

}  // namespace tamo
