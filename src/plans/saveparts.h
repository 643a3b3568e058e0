#pragma once

#include <QString>
#include <atomic>
#include <mutex>

#include "common/failure.h"
#include "plans/plansaver.h"

// The inside of PlanSaver, shared by its source files.
namespace tamo {

// How far a part of a save has come, written by the plan's thread.
struct PlanSaver::Progress {
  std::mutex writing;
  bool left = false;  // nobody waits for it any more: nothing may be written
  std::atomic<int> perCent = 0;
  int error = kFileOther;
  QString problem;  // in words, where the work has some
};

// How long the writing of a whole plan may take, in milliseconds.
inline constexpr int kCopyPatience = 600000;
// Instead of an error number: nothing can be appended to the plan, it has to be written anew.
inline constexpr int kNeedsRewrite = -1;

}  // namespace tamo
