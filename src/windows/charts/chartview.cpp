#include "windows/charts/chartview.h"

#include <QApplication>
#include <QBarCategoryAxis>
#include <QBarSet>
#include <QChart>
#include <QChartView>
#include <QHorizontalStackedBarSeries>
#include <QLegend>
#include <QToolTip>
#include <QValueAxis>
#include <algorithm>

namespace tamo {
namespace {

// Told apart by their lightness, too: on paper without colours, and by those who see few.
constexpr QRgb kParts[] = {0xff1f5fa8, 0xffe8a33d, 0xff4fb39a, 0xff8a8f98, 0xffb06fb8, 0xff30363f};

QString Dollars(double dollars) {
  return QStringLiteral("$ ") + QLocale::c().toString(dollars, 'f', 2);
}

void AddPart(QHorizontalStackedBarSeries& bars, const ChartData::Series& series, size_t at) {
  auto* part = new QBarSet(series.name, &bars);
  part->setColor(QColor::fromRgba(kParts[at % std::size(kParts)]));
  part->setBorderColor(Qt::transparent);
  // The first bar stands at the foot of such a chart.
  for (size_t i = series.dollars.size(); i > 0; --i) *part << series.dollars[i - 1];
  bars.append(part);
}

void TellOnHover(QHorizontalStackedBarSeries& bars, const QStringList& names, QChartView* view) {
  QObject::connect(
      &bars, &QAbstractBarSeries::hovered, view, [view, names](bool on, int bar, QBarSet* part) {
        if (!on) return QToolTip::hideText();
        QToolTip::showText(
            QCursor::pos(),
            QStringLiteral("%1\n%2: %3")
                .arg(names.value(names.size() - 1 - bar), part->label(), Dollars(part->at(bar))),
            view);
      });
}

template <class Axis>
void Colour(Axis& axis, const ChartColours& colours) {
  axis.setLabelsColor(colours.text);
  axis.setGridLineColor(colours.lines);
  axis.setLinePen(QPen(colours.lines));
}

void AddAxes(QChart& chart, QAbstractSeries& series, const QStringList& names,
             const ChartColours& colours) {
  auto* bars = new QBarCategoryAxis(&chart);
  QStringList upwards;
  for (const QString& name : names) {
    // Each category has a name of its own.
    QString one = name.isEmpty() ? QStringLiteral("(no name)") : name;
    while (upwards.contains(one)) one += QLatin1Char(' ');
    upwards.prepend(one);
  }
  bars->append(upwards);
  bars->setGridLineVisible(false);
  Colour(*bars, colours);
  auto* dollars = new QValueAxis(&chart);
  dollars->setLabelFormat(QStringLiteral("$ %.0f"));
  Colour(*dollars, colours);
  chart.addAxis(bars, Qt::AlignLeft);
  chart.addAxis(dollars, Qt::AlignBottom);
  series.attachAxis(bars);
  series.attachAxis(dollars);
  dollars->applyNiceNumbers();
}

QChartView* NewView(const ChartData& data, const ChartColours& colours) {
  auto* chart = new QChart;
  chart->setAnimationOptions(QChart::NoAnimation);
  chart->setBackgroundBrush(colours.ground);
  chart->setBackgroundRoundness(0);
  QFont heavy = QApplication::font();
  heavy.setWeight(QFont::DemiBold);
  chart->setTitleFont(heavy);
  chart->setTitle(data.title.toHtmlEscaped() + QStringLiteral("<br>") +
                  data.subtitle.toHtmlEscaped());
  chart->setTitleBrush(colours.text);
  auto* bars = new QHorizontalStackedBarSeries(chart);
  size_t at = 0;
  for (const ChartData::Series& series : data.series) {
    const bool empty = std::all_of(series.dollars.begin(), series.dollars.end(),
                                   [](double dollars) { return dollars == 0; });
    if (!empty) AddPart(*bars, series, at);
    ++at;
  }
  bars->setBarWidth(0.7);
  chart->addSeries(bars);
  AddAxes(*chart, *bars, data.bars, colours);
  chart->legend()->setAlignment(Qt::AlignBottom);
  chart->legend()->setLabelColor(colours.text);
  auto* view = new QChartView(chart);
  view->setRenderHint(QPainter::Antialiasing);
  view->setFrameShape(QFrame::NoFrame);
  TellOnHover(*bars, data.bars, view);
  return view;
}

}  // namespace
}  // namespace tamo

extern "C" Q_DECL_EXPORT QWidget* TamoNewChartView(const tamo::ChartData* data,
                                                   const tamo::ChartColours* colours) {
  return tamo::NewView(*data, *colours);
}
