#pragma once

#include <functional>
#include <memory>
#include <vector>

#include "plans/comparework.h"

namespace tamo {

// All sheets of the old plan that hold marks, to be compared with the new ones they belong to.
struct CarryTask {
  CompareTask common;  // plans and sizes; the pages are set for each sheet
  std::shared_ptr<SheetPairs> nowSheets;
  std::vector<PageSize> nowSizes;
  std::vector<int> oldPages;
};

struct SheetsToCarry {
  std::vector<SheetsCompared> sheets;
  QStringList alone;  // old sheets that none of the new plan is, in words
};

// By the sheet's number, or the same page where it has none. Blocks: for a thread of its own. With
// the sheets that are done by then `progress` is called.
SheetsToCarry CompareMarkedSheets(const CarryTask& task, CancelFlag& cancel,
                                  const std::function<void(int done)>& progress);

}  // namespace tamo
