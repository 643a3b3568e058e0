#pragma once

#include <memory>
#include <mutex>

#include "plans/planengine.h"

namespace tamo {

class MuPdfContexts;

// The engine MuPDF, working in this process. The memory of all its plans together is limited
// (MuPdfContexts::SetMemoryLimit).
class MuPdfEngine : public PlanEngine {
 public:
  std::shared_ptr<EnginePlan> NewPlan(std::shared_ptr<PlanSource> source) override;
  // Does ahead what the next plan needs in any case.
  void GetReady();

 private:
  std::mutex mutex_;
  std::shared_ptr<MuPdfContexts> ready_;
};

}  // namespace tamo
