#pragma once

#include <QString>
#include <optional>
#include <vector>

#include "schedule/scheduletable.h"
#include "schedule/sheetdrawing.h"

namespace tamo {

// Why nothing can be read, in plain words: what, where, and what to do. Empty when nothing is in
// the way. `boxed`: the box was drawn by hand.

// Of the text itself: none, a scan, hidden text, another script, far too much.
QString WhyUnreadable(const PageContent& page, const PageBox& box, bool boxed);
// Whether that is so because it is a scan: a picture with no text, or with hidden text alone.
bool OnlyAPicture(const PageContent& page, const std::optional<PageBox>& box);
// Of the tables that stand there.
QString WhyNoSchedule(const std::vector<ScheduleTable>& tables, bool boxed);
QString TwoTables(const ScheduleTable& other);
// A box that ends inside of a table.
QString WhyCut(const SheetDrawing& sheet, const PageBox& box,
               const std::vector<ScheduleTable>& tables);

}  // namespace tamo
