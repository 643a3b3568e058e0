#include "plans/painterstate.h"

// What stops and forgets.

namespace tamo {

void PlanPainter::State::StopOverdue() {
  for (PaintJob* job : working) {
    if (std::chrono::steady_clock::now() - job->began >= kLongestPaint) job->cancel->Cancel();
  }
}

void PlanPainter::State::Forget() {
  ++era;
  for (PaintJob* job : working) {
    if (job->kind != PaintJob::Kind::Print) job->cancel->Cancel();
  }
  lists.clear();
  coarse.clear();
  coarseOrder.clear();
  for (TurnedCoarse& turned : turnedCoarse) turned = {};
  tiles.clear();
  thumbnails.clear();
  smallLists.clear();
  failed.clear();
}

void PlanPainter::Forget() {
  const std::lock_guard<std::mutex> guard(state_->mutex);
  state_->Forget();
  state_->wake.notify_all();
}

bool PlanPainter::IsSharp() {
  const std::lock_guard<std::mutex> guard(state_->mutex);
  return state_->Sharp();
}

}  // namespace tamo
