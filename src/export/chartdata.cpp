#include "export/chartdata.h"

#include <QLocale>
#include <algorithm>

#include "common/numbers.h"

namespace tamo {
namespace {

QString Dollars(double dollars) {
  return QStringLiteral("$ ") + QLocale::c().toString(dollars, 'f', 2);
}

double NumberAt(std::span<const TableCell> cells, size_t at) {
  return at < cells.size() ? cells[at].Number() : 0;
}

ChartData::Series& SeriesOf(std::vector<ChartData::Series>& all, const QString& name, size_t bars) {
  auto found = std::find_if(all.begin(), all.end(),
                            [&](const ChartData::Series& one) { return one.name == name; });
  if (found == all.end()) found = all.insert(all.end(), {name, {}});
  found->dollars.resize(bars);
  return *found;
}

}  // namespace

double ChartData::Total(size_t bar) const {
  double total = 0;
  for (const Series& one : series) total += one.dollars[bar];
  return total;
}

QStringList ChartData::Lines() const {
  QStringList lines = {title, subtitle};
  for (size_t bar = 0; bar < static_cast<size_t>(bars.size()); ++bar) {
    QStringList parts;
    for (const Series& one : series) {
      if (one.dollars[bar] != 0) parts += one.name + QLatin1Char(' ') + Dollars(one.dollars[bar]);
    }
    lines +=
        bars[static_cast<qsizetype>(bar)] + QStringLiteral(": ") + parts.join(QStringLiteral(", "));
  }
  return lines;
}

void RecapChart::Begin(const std::vector<TableColumn>& columns) {
  columns_ = columns;
}

void RecapChart::Row(std::span<const TableCell> cells, RowWeight) {
  const auto figure = [&](const char* name) {
    for (size_t i = 0; i < columns_.size(); ++i) {
      if (columns_[i].name == QLatin1String(name)) return NumberAt(cells, i);
    }
    return 0.0;
  };
  const QStringView kind = cells[0].Text();
  if (kind == u"Total") total_ = figure("Total");
  const bool adjustment = kind == u"Adjustment";
  if (kind != u"System" && kind != u"Item" && !adjustment) return;
  Bar bar{adjustment ? kind.toString() : cells[1].Text().toString()};
  bar.labor = figure("Labor");
  bar.material = figure("Material");
  bar.markups = figure("Markups");
  bar.unitPriced = figure("Total") - bar.labor - bar.material - bar.markups;
  // What rounding leaves is no price.
  if (bar.labor + bar.material != 0) bar.unitPriced = 0;
  bars_.push_back(bar);
}

ChartData RecapChart::Take(const QString& title) const {
  std::vector<Bar> bars = bars_;
  std::stable_sort(bars.begin(), bars.end(),
                   [](const Bar& a, const Bar& b) { return a.All() > b.All(); });
  if (bars.size() > kMostBars) {
    Bar rest;
    for (size_t i = kMostBars - 1; i < bars.size(); ++i) {
      rest.labor += bars[i].labor;
      rest.material += bars[i].material;
      rest.markups += bars[i].markups;
      rest.unitPriced += bars[i].unitPriced;
    }
    rest.name = QStringLiteral("%1 others").arg(bars.size() - kMostBars + 1);
    bars.resize(kMostBars - 1);
    bars.push_back(rest);
  }
  ChartData data{title, QStringLiteral("Total ") + Dollars(total_), {}, {}};
  for (const char* name : {"Labor", "Material", "Markups", "Unit price"})
    data.series.push_back({QLatin1String(name), {}});
  for (const Bar& bar : bars) {
    data.bars += bar.name;
    const double parts[] = {bar.labor, bar.material, bar.markups, bar.unitPriced};
    for (size_t i = 0; i < data.series.size(); ++i) data.series[i].dollars.push_back(parts[i]);
  }
  return data;
}

void BreakDownChart::Row(std::span<const TableCell> cells, RowWeight weight) {
  const QString group = cells[0].Text().toString();
  const QString figure = cells[1].Text().toString();
  if (group == QLatin1String("Bid")) {
    total_ = NumberAt(cells, 2);
  } else if (figure == QLatin1String("Gross Profit")) {
    gross_ = NumberAt(cells, 3);
  } else if (figure == QLatin1String("Net Profit")) {
    net_ = NumberAt(cells, 3);
  } else if (weight == RowWeight::Total) {
    groups_ += group;
  } else {
    // "Raw Labor" and "Raw Material" are one kind of part, "Labor Tax" and "Misc. Tax" another.
    const QString part = figure.startsWith(QLatin1String("Raw"))
                             ? QStringLiteral("Raw")
                             : figure.section(QLatin1Char(' '), -1);
    ChartData::Series& series = SeriesOf(series_, part, static_cast<size_t>(groups_.size()));
    series.dollars.back() = NumberAt(cells, 2);
  }
}

ChartData BreakDownChart::Take(const QString& title) const {
  ChartData data{title,
                 QStringLiteral("Total bid price %1, gross profit %2 %, net profit %3 %")
                     .arg(Dollars(total_), NumberText(gross_), NumberText(net_)),
                 groups_, series_};
  for (ChartData::Series& series : data.series)
    series.dollars.resize(static_cast<size_t>(groups_.size()));
  return data;
}

}  // namespace tamo
