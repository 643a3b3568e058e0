#include "plans/marklegend.h"

#include <algorithm>

#include "plans/markshape.h"

namespace tamo {
namespace {

constexpr double kRow = 14;
constexpr double kEdge = 7;
constexpr double kGap = 18;   // between names and totals
constexpr double kBase = 10;  // of a row's base line below its top
constexpr unsigned kBlack = 0x202020;
constexpr char kWord[] = "legend";

LegendShape::Text At(const QString& text, double x, double top) {
  return {text, {x, top + kBase}, LetterWidth(text, kLegendLetters), kBlack};
}

}  // namespace

LegendText LegendOf(const std::vector<MarkTotal>& totals, bool ofPlan, int page) {
  LegendText legend;
  legend.ofPlan = ofPlan;
  legend.head = ofPlan ? QStringLiteral("Totals of the plan")
                       : QStringLiteral("Totals of sheet %1").arg(page);
  for (const MarkTotal& total : totals) {
    if (legend.rows.size() == kMostLegendRows) break;
    const double quantity = ofPlan ? total.plan : total.sheet;
    if (quantity == 0) continue;
    legend.rows.push_back({SystemInWords(total), TotalInWords(quantity, total.unit), total.colour});
  }
  return legend;
}

void PutLegend(Mark& mark, const LegendText& legend) {
  QStringList lines(legend.head);
  QStringList colours;
  for (const LegendText::Row& row : legend.rows) {
    lines += row.name + QLatin1Char('\t') + row.total;
    colours += row.colour;
  }
  mark.kind = Mark::Kind::Legend;
  mark.label = lines.join(QLatin1Char('\n'));
  mark.kept = QStringList{QLatin1String(kWord),
                          legend.ofPlan ? QStringLiteral("plan") : QStringLiteral("sheet"),
                          colours.join(QLatin1Char(' '))}
                  .join(QLatin1Char('\n'))
                  .left(kLongestKept);
}

LegendText LegendOfMark(const Mark& mark) {
  LegendText legend;
  QString text = mark.label;
  text.replace(QLatin1Char('\r'), QLatin1Char('\n'));
  const QStringList lines = text.split(QLatin1Char('\n'));
  const QStringList kept = mark.kept.split(QLatin1Char('\n'));
  const QStringList colours = kept.value(2).split(QLatin1Char(' '));
  legend.ofPlan = kept.value(1) == QLatin1String("plan");
  legend.head = lines.value(0);
  for (qsizetype i = 1; i < lines.size() && legend.rows.size() < kMostLegendRows; ++i) {
    const QString colour = colours.value(i - 1);
    legend.rows.push_back({lines[i].section(QLatin1Char('\t'), 0, 0),
                           lines[i].section(QLatin1Char('\t'), 1),
                           IsColourCode(colour) ? colour : QStringLiteral("000000000")});
  }
  return legend;
}

LegendShape ShapeOfLegend(const Mark& mark) {
  const LegendText legend = LegendOfMark(mark);
  LegendShape shape;
  if (mark.points.empty()) return shape;
  shape.at = mark.points.front();
  const QString head = mark.title.isEmpty() ? legend.head : mark.title;
  double names = 0;
  double totals = 0;
  for (const LegendText::Row& row : legend.rows) {
    names = std::max(names, LetterWidth(row.name, kLegendLetters));
    totals = std::max(totals, LetterWidth(row.total, kLegendLetters));
  }
  const double left = shape.at.x + kEdge;
  const double first = left + kLegendPatch + kEdge;
  const double inner =
      std::max(kLegendPatch + kEdge + names + kGap + totals, LetterWidth(head, kLegendLetters));
  shape.width = inner + 2 * kEdge;
  shape.height = kRow * static_cast<double>(legend.rows.size() + 1) + 2 * kEdge;
  double top = shape.at.y + kEdge;
  shape.texts.push_back(At(head, left, top));
  shape.underHead = top + kRow - 1;
  for (const LegendText::Row& row : legend.rows) {
    top += kRow;
    shape.patches.push_back({{left, top + kBase - kLegendPatch + 1}, ColourNumber(row.colour)});
    shape.texts.push_back(At(row.name, first, top));
    const double wide = LetterWidth(row.total, kLegendLetters);
    shape.texts.push_back(At(row.total, left + inner - wide, top));
  }
  return shape;
}

}  // namespace tamo
