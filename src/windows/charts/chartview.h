#pragma once

#include <QColor>

#include "export/chartdata.h"

class QWidget;

namespace tamo {

// How a chart is coloured.
struct ChartColours {
  QColor ground;
  QColor text;
  QColor lines;
};

// What draws charts is a library of its own beside the program, loaded with the first chart.
inline constexpr char kChartModule[] = "tamo-charts";
inline constexpr char kChartFunction[] = "TamoNewChartView";
// A view of the chart, a QGraphicsView; it belongs to the caller.
using ChartFunction = QWidget* (*)(const ChartData* data, const ChartColours* colours);

}  // namespace tamo
