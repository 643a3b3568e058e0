#pragma once

#include "windows/charts/chartview.h"

class QWidget;

namespace tamo {

// On the screen as the program looks, on paper dark on white.
ChartColours ChartColoursOfScreen();
ChartColours ChartColoursOfPaper();

// A view of the chart, which also says in words what it shows; the words alone where what draws
// charts is not installed. It belongs to the caller.
QWidget* NewChartView(const ChartData& data, const ChartColours& colours);

}  // namespace tamo
