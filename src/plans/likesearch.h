#pragma once

#include <functional>
#include <memory>
#include <mutex>

#include "plans/likefinder.h"
#include "plans/workthread.h"

namespace tamo {

// Looks for a symbol on a thread of its own. Another search, or none, ends the one before.
class LikeSearch {
 public:
  ~LikeSearch() { Drop(); }

  void Begin(std::shared_ptr<const SnapIndex> lines,
             std::shared_ptr<const std::vector<LikeLetter>> letters, const PageBox& box);
  void Drop();
  bool Busy() const;
  int PerCent() const { return search_ == nullptr ? 0 : search_->perCent.load(); }
  // What was found, once; false when nothing is, or not yet.
  bool Take(LikesFound& found);
  bool Wait(int milliseconds);   // false when it is still busy then
  std::function<void()> onDone;  // called by the thread that looks; set before the first search

 private:
  struct Search {
    CancelFlag cancel;
    std::atomic<int> perCent = 0;
    mutable std::mutex mutex;
    bool done = false;
    LikesFound found;
  };
  // What is worked out once for a sheet; only the thread touches it.
  struct Sheet {
    std::unique_ptr<LikeSheet> made;
  };

  std::shared_ptr<Search> search_;
  std::shared_ptr<Sheet> sheet_ = std::make_shared<Sheet>();
  std::unique_ptr<WorkThread> thread_;  // from the first search on
};

}  // namespace tamo
