#pragma once

#include <vector>

#include "plans/overlayink.h"
#include "plans/pagecontent.h"

namespace tamo {

// The long level and upright lines of a painted sheet, for scans that have no lines of their own:
// each along the middle of its ink, in points.
std::vector<PageLine> LinesOfPicture(const Ink& ink, double pixelsPerPoint);

}  // namespace tamo
