#pragma once

#include <atomic>
#include <functional>
#include <mutex>

namespace tamo {

// Tells a piece of work, from any thread, that it is not wanted any more.
class CancelFlag {
 public:
  CancelFlag() = default;
  CancelFlag(const CancelFlag&) = delete;
  CancelFlag& operator=(const CancelFlag&) = delete;

  void Cancel();
  bool Cancelled() const { return cancelled_; }
  const std::atomic<bool>& Value() const { return cancelled_; }

  // For who does the work: `tell` is called once, by whoever cancels, or at once when it is
  // cancelled already. An empty one ends that; no call is in work any more then.
  void WhenCancelled(std::function<void()> tell);

 private:
  std::atomic<bool> cancelled_ = false;
  std::mutex mutex_;
  std::function<void()> tell_;
};

}  // namespace tamo
