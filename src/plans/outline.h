#pragma once

#include <span>
#include <vector>

#include "plans/mark.h"

// The arithmetic of outlines: points of one page, in points of paper.
namespace tamo {

using OutlinePoints = std::span<const PagePoint>;

// The way along all points, and back to the first when it is closed.
double OutlineLength(OutlinePoints points, bool closed);
// In square points, never negative. Of use only when the outline does not cross itself.
double OutlineArea(OutlinePoints points);
// Two sides of the closed outline meet elsewhere than where they follow each other.
bool CrossesItself(OutlinePoints points);
// The place lies inside the closed outline, or at most `reach` points off its edge.
bool HoldsPlace(OutlinePoints points, PagePoint at, double reach);
// The closed outline `inner` lies inside `outer`, or reaches at most `reach` points over its edge.
bool HoldsOutline(OutlinePoints outer, OutlinePoints inner, double reach);
double DistanceToLine(PagePoint at, PagePoint from, PagePoint to);

// The arc from `from` through `through` to `to` as points that lie on it, without the first, so
// close that no chord is more than a hundredth of a point off. Three points on one line give that
// line.
std::vector<PagePoint> ArcThrough(PagePoint from, PagePoint through, PagePoint to);

// Where the label of a closed outline has most room: the middle of the widest level line inside.
PagePoint RoomiestPlace(OutlinePoints points);

}  // namespace tamo
