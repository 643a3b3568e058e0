#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include "plans/comparedsheets.h"
#include "plans/planengine.h"
#include "plans/sheetpairs.h"

namespace tamo {

// What is to be found out about a sheet and its former state.
struct CompareTask {
  std::shared_ptr<EnginePlan> now;
  std::shared_ptr<EnginePlan> old;
  std::shared_ptr<SheetPairs> oldSheets;
  PageSize nowSize;
  std::vector<PageSize> oldSizes;
  int page = 1;
  int oldPage = 1;  // where to begin; the sheet itself when it was chosen by hand
  bool byUser = false;
  bool keepPair = false;             // no other sheet is looked for
  std::optional<SheetFit> byPoints;  // how it lies, as two points say
};

// Each step tells what is known by then; `searched` sheets were looked at for the one that belongs.
using TellCompared = std::function<void(const SheetsCompared& known, int searched)>;

// Finds the sheet that belongs to the page, how it lies over it, and where they differ. Blocks: for
// a thread of its own.
void CompareSheets(const CompareTask& task, CancelFlag& cancel, const TellCompared& tell);

}  // namespace tamo
