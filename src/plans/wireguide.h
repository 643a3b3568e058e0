#pragma once

#include "plans/planguide.h"
#include "plans/wire.h"

namespace tamo {

// The guide of a plan and the links of a page on the wire (docs/plan-engine.md). As with all that
// comes from a worker, what no honest one says makes the reader bad or is cut to what there can be.
void Put(WireWriter& wire, const PlanGuide& guide);
void Take(WireReader& wire, PlanGuide& guide);
void Put(WireWriter& wire, const std::vector<PageLink>& links);
void Take(WireReader& wire, std::vector<PageLink>& links);
// Of each layer whether it is shown.
void Put(WireWriter& wire, const std::vector<bool>& layers);
void Take(WireReader& wire, std::vector<bool>& layers);

// A text of a file for a person: one line, no control characters, at most so long.
QString OneLine(const QString& text, int most);

}  // namespace tamo
