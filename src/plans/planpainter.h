#pragma once

#include <functional>
#include <map>
#include <memory>
#include <thread>
#include <vector>

#include "plans/mark.h"
#include "plans/planengine.h"
#include "plans/planpictures.h"

namespace tamo {

// Makes the pictures of one open plan on two threads of its own: one reads pages and paints, the
// other only paints. What is visible comes first, the coarse picture of the page before its sharp
// parts; a part that is no longer wanted is stopped.
//
// Destroying it stops all work and comes back within a moment, also when a hostile page does not.
class PlanPainter {
 public:
  // `onChanged` is called from the painter's threads.
  PlanPainter(std::shared_ptr<EnginePlan> plan, std::vector<PageSize> sizes,
              std::function<void()> onChanged);
  ~PlanPainter();
  PlanPainter(const PlanPainter&) = delete;
  PlanPainter& operator=(const PlanPainter&) = delete;

  void Look(const PlanView& view);
  // Everything is painted anew: the plan shows something else on the same pages.
  void Forget();
  // Nothing that is visible, and no thumbnail asked for, is missing.
  bool IsSharp();
  std::vector<PlacedPicture> PicturesFor(const PlanView& view);
  std::shared_ptr<const Picture> Thumbnail(int page, int longSide);
  std::shared_ptr<const Picture> PrintPicture(const PlanView& part, int milliseconds,
                                              const std::function<void()>& meanwhile);

  // Waits until nothing that is visible, and no thumbnail asked for, is missing. For tests and
  // benchmarks.
  bool WaitUntilSharp(int milliseconds);
  bool WaitForCoarse(int milliseconds);
  // The pages that can't be shown, each named once.
  std::vector<int> TakeFailedPages();
  // What is missing from the pages looked at, each told once.
  std::map<int, PageGaps> TakeGaps();

  struct State;

 private:
  std::shared_ptr<State> state_;
  std::vector<std::thread> threads_;
};

}  // namespace tamo
