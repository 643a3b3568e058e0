#pragma once

#include <QString>
#include <optional>
#include <vector>

#include "schedule/scheduletable.h"

namespace tamo {

// The tables that stand on a page, each framed, of all kinds that are known, in reading order. Each
// part of a table that goes on beside itself is one.
std::vector<ScheduleTable> FindTables(const PageContent& page);

// What was read of a room finish schedule, or in words why nothing was.
struct ScheduleReading {
  QString problem;                   // what, where, and what to do; empty when it was read
  std::vector<ScheduleTable> parts;  // in reading order
};

// Reads the room finish schedule inside a box (points on the page as displayed); without a box, the
// one that stands on the page. Nothing is taken of a table that the box cuts through.
// `before`: the part that a further one follows; then its heads need not be repeated.
ScheduleReading ReadSchedule(const PageContent& page, const std::optional<PageBox>& box,
                             const ScheduleTable* before = nullptr);

}  // namespace tamo
