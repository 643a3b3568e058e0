#pragma once

#include <vector>

#include "plans/mark.h"

namespace tamo {

// How far a place is from what is drawn of a mark: its line, its edge, its circle. Points of paper.
double DistanceToMark(const Mark& mark, PagePoint at, double markerSize);

// The names of the marks on `page` that a place means: those drawn within `reach` of it, the
// nearest first; when there are none, the areas around it, the smallest first.
std::vector<QString> MarksAt(const std::vector<Mark>& marks, int page, PagePoint at, double reach,
                             double markerSize);

// Which point of the mark lies nearest to the place, within `reach`; -1 for none.
int PointAt(const Mark& mark, PagePoint at, double reach);

}  // namespace tamo
