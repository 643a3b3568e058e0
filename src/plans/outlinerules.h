#pragma once

#include <QString>
#include <vector>

#include "plans/mark.h"

namespace tamo {

// Points of paper that a cut-out may reach over the edge of its area.
inline constexpr double kOverEdge = 2;

// Why these points can't be a mark of that kind, in words; "" when they can.
QString WhyNoOutline(Mark::Kind kind, const std::vector<PagePoint>& points);

// Why a cut-out of these points can't stand on `page` among `marks`; "" when it can. A mark of the
// name `itself` does not count.
QString WhyNoCutOut(const std::vector<Mark>& marks, int page, const std::vector<PagePoint>& points,
                    const QString& itself = {});

}  // namespace tamo
