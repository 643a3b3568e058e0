#pragma once

#include <functional>
#include <optional>
#include <vector>

#include "plans/mark.h"
#include "plans/paperunit.h"

namespace tamo {

// The length along the points of a mark, or the square of what it holds, in points of paper.
double DrawnMeasure(Mark::Kind kind, const std::vector<PagePoint>& points);

// What a mark of this kind would say by the scale in force; "" when nobody can tell.
using MeasureInForce =
    std::function<QString(Mark::Kind kind, const std::vector<PagePoint>& points)>;

// The scale that a label names, as feet for a point of paper: `10.0 feet @ 1/4"=1'` gives 1/18.
std::optional<double> ScaleOfLabel(const QString& label);

// What `mark` says when its points become `points`: at the scale at which it was measured, whatever
// scale is in force now. The words behind the number stay.
QString MovedLabel(const Mark& mark, const std::vector<PagePoint>& points,
                   const MeasureInForce& inForce);

}  // namespace tamo
