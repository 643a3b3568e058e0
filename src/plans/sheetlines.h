#pragma once

#include <functional>
#include <memory>
#include <mutex>
#include <vector>

#include "plans/likesheet.h"
#include "plans/planengine.h"
#include "plans/printedscale.h"
#include "plans/snapindex.h"
#include "plans/workthread.h"

namespace tamo {

// The lines of one page of a plan, and the scales that it prints, read on a thread of its own.
// Another page, another plan or none drops them.
class SheetLines {
 public:
  ~SheetLines();

  // The page whose lines are wanted; nothing happens when they are there or on their way. A null
  // plan drops what there is.
  void Want(const std::shared_ptr<EnginePlan>& plan, int page);
  // Drops what is there of another page or plan; reads nothing.
  void KeepOnly(const std::shared_ptr<EnginePlan>& plan, int page);
  // Null while they are read, and when they could not be.
  std::shared_ptr<const SnapIndex> Index() const;
  std::shared_ptr<const std::vector<LikeLetter>> Letters() const;  // with the lines
  bool Reading() const;
  // What the page prints, as far as it is the one read and that is done.
  std::vector<PrintedScale> Scales(const std::shared_ptr<EnginePlan>& plan, int page) const;
  // True once after each page that was read.
  bool TakeNews();
  std::function<void()> onRead;  // called by the thread that reads; set before the first page
  // Why there is little or nothing to snap to, as a sentence; "" while they are read, and when all
  // is well.
  QString Problem() const;
  QString SymbolsProblem() const;  // the same for finding symbols by them
  // For tests and players: false when they are still on their way then.
  bool Wait(int milliseconds);

 private:
  struct Read {
    CancelFlag cancel;
    mutable std::mutex mutex;
    bool done = false;
    std::shared_ptr<const SnapIndex> index;
    std::shared_ptr<const std::vector<LikeLetter>> letters;
    QString problem;
    QString symbolsProblem;
    std::vector<PrintedScale> scales;
    bool told = false;
  };
  static void ReadPage(const std::shared_ptr<EnginePlan>& plan, int page,
                       const std::shared_ptr<Read>& read);

  std::weak_ptr<EnginePlan> plan_;
  int page_ = 0;
  std::shared_ptr<Read> read_;
  std::unique_ptr<WorkThread> thread_;  // from the first page on
};

}  // namespace tamo
