#pragma once

#include <functional>
#include <memory>
#include <optional>

#include "plans/planengine.h"
#include "schedule/legend.h"
#include "schedule/schedulereader.h"

namespace tamo {

class SheetPictures;

// A sheet to read.
struct SheetToRead {
  std::shared_ptr<EnginePlan> plan;     // opened; null when it is not
  int page = 1;                         // from 1
  std::optional<PageBox> box;           // as ReadSchedule has it
  std::optional<ScheduleTable> before;  // the part that it follows
  bool withLegend = false;
  std::shared_ptr<const SheetPictures> pictures;  // when its picture is to be read
};

struct SheetRead {
  QString problem;  // empty when it was read
  std::vector<ScheduleTable> parts;
  Legend legend;
  bool picture = false;  // nothing was read because it is a scanned picture
};

// Reads a sheet on a thread of its own and comes back with it. `progress` is called with (0, 0)
// every few milliseconds meanwhile, on the thread of the caller; false stops the reading. Without
// it the caller waits.
SheetRead ReadAside(SheetToRead sheet, const std::function<bool(int done, int all)>& progress);

}  // namespace tamo
