#pragma once

#include <QColor>

#include "export/chartdata.h"

class QChartView;

namespace tamo {

// How a chart is coloured: on the screen as the program looks, on paper dark on white.
struct ChartColours {
  QColor ground;
  QColor text;
  QColor lines;

  static ChartColours OfScreen();
  static ChartColours OfPaper();
};

// A view of the chart; it belongs to the caller.
QChartView* NewChartView(const ChartData& data, const ChartColours& colours);

}  // namespace tamo
