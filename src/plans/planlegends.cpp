#include "plans/planlegends.h"

#include <algorithm>

#include "plans/marklegend.h"

namespace tamo {
namespace {

constexpr double kFromCorner = 24;  // points from the corner of what is in sight
constexpr int kSystemWidth = 16;
constexpr int kTotalWidth = 11;

}  // namespace

std::vector<Mark> PlanLegends::All() const {
  std::vector<Mark> legends;
  for (const Mark& mark : viewer_.MarksAsDrawn()) {
    if (mark.kind == Mark::Kind::Legend) legends.push_back(mark);
  }
  return legends;
}

void PlanLegends::Tell(const QString& words) {
  if (viewer_.onToolRefused) viewer_.onToolRefused(words);
}

void PlanLegends::BringUpToDate(const Mark& mark) {
  Mark now = mark;
  const bool ofPlan = LegendOfMark(mark).ofPlan;
  PutLegend(now, LegendOf(TotalsOf(viewer_.MarksAsDrawn(), mark.page), ofPlan, mark.page));
  viewer_.ChangeMark(now);
}

void PlanLegends::Place(bool ofPlan) {
  const int page = viewer_.Page();
  const LegendText legend = LegendOf(TotalsOf(viewer_.MarksAsDrawn(), page), ofPlan, page);
  if (legend.rows.empty())
    return Tell(QStringLiteral("There are no marks here that a legend could add up."));
  if (!viewer_.MayMark()) return;
  for (const Mark& mark : All()) {
    if (mark.page != page || LegendOfMark(mark).ofPlan != ofPlan) continue;
    BringUpToDate(mark);
    viewer_.Hand().Choose(mark.name);
    return;
  }
  Mark mark;
  mark.page = page;
  mark.colour = QStringLiteral("000000000");
  PutLegend(mark, legend);
  const PageSize size = viewer_.SizeOfPage(page);
  mark.points = {{0, 0}};
  const LegendShape shape = ShapeOfLegend(mark);
  const auto at = [](double corner, double length, double room) {
    return std::clamp(corner + kFromCorner, 0.0, std::max(0.0, room - length));
  };
  mark.points = {{at(viewer_.ViewValue(ViewPart::Horizontal), shape.width, size.width),
                  at(viewer_.ViewValue(ViewPart::Vertical), shape.height, size.height)}};
  viewer_.Hand().Choose(viewer_.PlaceMark(mark));
}

void PlanLegends::Refresh() {
  const std::vector<Mark> legends = All();
  if (legends.empty()) return Tell(QStringLiteral("There is no legend on this plan."));
  if (!viewer_.MayMark()) return;
  for (const Mark& mark : legends) BringUpToDate(mark);
}

void PlanLegends::Remove() {
  const std::vector<Mark> legends = All();
  if (legends.empty()) return Tell(QStringLiteral("There is no legend on this plan."));
  if (!viewer_.MayMark()) return;
  for (const Mark& mark : legends) viewer_.RemoveMark(mark.name);
}

QString TotalsHead() {
  return QStringLiteral("System").leftJustified(kSystemWidth) +
         QStringLiteral("This sheet").rightJustified(kTotalWidth) +
         QStringLiteral("Plan").rightJustified(kTotalWidth);
}

QStringList TotalRows(const std::vector<Mark>& marks, int page) {
  QStringList rows;
  for (const MarkTotal& total : TotalsOf(marks, page)) {
    rows += SystemInWords(total).left(kSystemWidth - 1).leftJustified(kSystemWidth) +
            LengthText(total.sheet).rightJustified(kTotalWidth) +
            LengthText(total.plan).rightJustified(kTotalWidth) + QLatin1Char(' ') + total.unit;
  }
  return rows;
}

}  // namespace tamo
