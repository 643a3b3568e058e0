#pragma once

#include <vector>

#include "plans/pagecontent.h"

namespace tamo {

// The corners of the smallest outline without dents around all places; fewer than three when they
// lie on one line.
std::vector<PagePoint> HullOf(std::vector<PagePoint> places);
// The part of the line that lies at least `inset` points inside the outline; false when none does.
bool CutToHull(PageLine& line, const std::vector<PagePoint>& hull, double inset);
bool InHull(PagePoint at, const std::vector<PagePoint>& hull, double inset);
double HullArea(const std::vector<PagePoint>& hull);
// The area that both hold.
double SharedArea(const std::vector<PagePoint>& one, const std::vector<PagePoint>& other);
PageBox BoxAround(const std::vector<PagePoint>& places);

}  // namespace tamo
