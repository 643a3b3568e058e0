#pragma once

#include <QString>
#include <QStringList>
#include <vector>

#include "plans/mark.h"
#include "plans/marktotals.h"

namespace tamo {

// A legend is a mark of one point, its top left corner: the totals by system, of a sheet or of the
// plan. Its label is its text, a line for the head and one for each system, name and total with a
// tab between; the colours of the lines are kept with it.
struct LegendText {
  bool ofPlan = false;
  QString head;
  struct Row {
    QString name;
    QString total;
    QString colour;  // RRRGGGBBB
  };
  std::vector<Row> rows;
};

LegendText LegendOf(const std::vector<MarkTotal>& totals, bool ofPlan, int page);
void PutLegend(Mark& mark, const LegendText& legend);
// Whatever a file made of it: what can be shown.
LegendText LegendOfMark(const Mark& mark);

// A legend as it is painted, in points of the page as it is looked at.
struct LegendShape {
  struct Text {
    QString text;
    PagePoint at;  // where its base line begins
    double width = 0;
    unsigned colour = 0;  // 0xRRGGBB
  };
  struct Patch {
    PagePoint at;  // top left
    unsigned colour = 0;
  };
  PagePoint at;
  double width = 0;
  double height = 0;
  double underHead = 0;  // where the line under the head lies
  std::vector<Text> texts;
  std::vector<Patch> patches;
};
inline constexpr double kLegendLetters = 9;
inline constexpr double kLegendPatch = 8;
inline constexpr size_t kMostLegendRows = 300;

LegendShape ShapeOfLegend(const Mark& mark);

}  // namespace tamo
