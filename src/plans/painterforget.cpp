#include "plans/painterstate.h"

// What stops and forgets.

namespace tamo {

void PlanPainter::State::StopOverdue() {
  for (PaintJob* job : working) {
    if (std::chrono::steady_clock::now() - job->began >= kLongestPaint) job->cancel->Cancel();
  }
}

// Pages that are only kept for later must not be the reason why one has no memory.
bool PlanPainter::State::DropOtherLists(int page) {
  const auto other = [&](const auto& kept) {
    return kept.first != page && kept.first != view.page;
  };
  return std::erase_if(lists, other) + std::erase_if(smallLists, other) > 0;
}

void PlanPainter::State::Forget() {
  ++era;
  for (PaintJob* job : working) {
    if (job->kind != PaintJob::Kind::Print) job->cancel->Cancel();
  }
  lists.clear();
  coarse.Clear();
  for (TurnedCoarse& turned : turnedCoarse) turned = {};
  tiles.clear();
  thumbnails.Clear();
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
