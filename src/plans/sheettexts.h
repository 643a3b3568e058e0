#pragma once

#include <functional>
#include <memory>
#include <vector>

#include "plans/pagelines.h"
#include "plans/planengine.h"
#include "plans/workthread.h"

namespace tamo {

// The text of all sheets of a plan, read one after the other on a thread of its own, from the one
// in sight on and round the end. All calls come from one thread.
class SheetTexts {
 public:
  struct Line {
    int page = 0;  // from 1
    QString text;
    PageBox box;  // points of the page
  };

  // What was read of one sheet.
  struct Sheet {
    int page = 0;
    PageSize size;
    std::vector<PageTextLine> lines;
    bool whole = false;
  };

  ~SheetTexts() { Drop(); }

  // Set before the first plan, and called by the thread that reads: takes what a sheet says, which
  // is then not kept here; and whether the next sheet may be read, or has to wait for what the
  // estimator looks at.
  std::function<void(const Sheet& sheet)> onSheet;
  std::function<bool()> mayRead;

  // Nothing happens when the plan is the one that is being read; another, or none, drops what there
  // is. `pages` of it, `first` first.
  void Want(const std::shared_ptr<EnginePlan>& plan, int pages, int first);
  void Drop();
  // Adds what was read since the last call to Lines(), which only ever grow until they are dropped;
  // true when there was anything.
  bool Take();
  const std::vector<Line>& Lines() const { return lines_; }
  int Sheets() const { return pages_; }
  int SheetsRead() const { return sheetsRead_; }
  bool Done() const { return sheetsRead_ == pages_; }
  int SheetsFailed() const { return sheetsFailed_; }  // that could not be read, or only in part

 private:
  struct Reading;
  static void Read(const std::shared_ptr<EnginePlan>& plan, int pages, int first,
                   const std::shared_ptr<Reading>& reading);

  std::weak_ptr<EnginePlan> plan_;
  std::shared_ptr<Reading> reading_;
  std::vector<Line> lines_;
  int pages_ = 0;
  int sheetsRead_ = 0;
  int sheetsFailed_ = 0;
  std::unique_ptr<WorkThread> thread_;  // from the first plan on
};

}  // namespace tamo
