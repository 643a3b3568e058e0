#pragma once

#include <functional>
#include <memory>

#include "plans/cancelflag.h"
#include "plans/formsqueue.h"
#include "plans/workthread.h"

namespace tamo {

// What is found out about plans on a thread of its own, one job after the other. Some jobs are
// about the sheet in front and end with it; lasting ones go on while other sheets are looked at.
// All calls, and all news of the jobs, belong to the thread that made it.
class SheetJobs {
 public:
  // `news` is handed over in its order, unless the job is stopped before.
  using TellNews = std::function<void(std::function<void()> news)>;
  using Job = std::function<void(CancelFlag& cancel, const TellNews& tell)>;

  void Post(Job job);
  void PostLasting(Job job);
  void LeaveSheet();  // stops the jobs about the sheet in front
  void StopAll();     // those and the lasting ones

  // For other threads with news of their own; may be called for ever.
  std::function<void(FormsQueue::News)> Poster() const { return queue_.Poster(); }
  // Until nothing is in work any more, with all news handed over. For tests and players: false
  // when it takes longer.
  bool Settle(int milliseconds);

 private:
  using Stop = std::shared_ptr<CancelFlag>;
  void Begin(Job job, Stop& stop);

  FormsQueue queue_;
  Stop sheet_;
  Stop lasting_;
  int busy_ = 0;                        // jobs whose end was not told yet
  std::unique_ptr<WorkThread> thread_;  // from the first job on
};

}  // namespace tamo
