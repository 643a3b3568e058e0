#include "windows/chartmodule.h"

#include <QApplication>
#include <QLabel>
#include <QLibrary>
#include <QPalette>

namespace tamo {
namespace {

ChartFunction Load() {
  const QString folder = QCoreApplication::applicationDirPath();
  for (const char* place : {"/", "/modules/", "/../"}) {
    QLibrary module(folder + QLatin1String(place) + QLatin1String(kChartModule));
    if (auto* function = module.resolve(kChartFunction))
      return reinterpret_cast<ChartFunction>(function);
  }
  return nullptr;
}

}  // namespace

ChartColours ChartColoursOfScreen() {
  const QPalette palette = QApplication::palette();
  const QColor text = palette.color(QPalette::Text);
  QColor lines = text;
  lines.setAlphaF(0.25F);
  return {palette.color(QPalette::Base), text, lines};
}

ChartColours ChartColoursOfPaper() {
  return {Qt::white, Qt::black, QColor(0xc0, 0xc0, 0xc0)};
}

QWidget* NewChartView(const ChartData& data, const ChartColours& colours) {
  static const ChartFunction draw = Load();
  const QString words = data.Lines().join(QLatin1Char('\n'));
  QWidget* view = draw != nullptr ? draw(&data, &colours) : new QLabel(words);
  view->setAccessibleName(data.title);
  view->setAccessibleDescription(words);
  return view;
}

}  // namespace tamo
