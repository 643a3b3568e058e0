#include "plans/marklabel.h"

#include <algorithm>
#include <cmath>

#include "common/numbers.h"
#include "plans/fraction.h"
#include "plans/outline.h"

namespace tamo {
namespace {

constexpr double kPointsOfAnInch = 72;
constexpr double kHalfTenth = 0.051;  // by which a number of one decimal is off at most

struct RatioForm {
  const char* between;
  const char* end;
  double paper;  // points
};

double NumberOf(const QString& label) {
  return QString(label.section(QLatin1Char(' '), 0, 0)).remove(QLatin1Char(',')).toDouble();
}

QString WithNumber(double number, const QString& label) {
  const qsizetype blank = label.indexOf(QLatin1Char(' '));
  return LengthText(number) + (blank < 0 ? QString() : label.mid(blank));
}

// The number of the mark as it stands is what `measured` says of its points now.
bool Says(const Mark& mark, double measured) {
  const double number = std::abs(NumberOf(mark.label));
  return std::abs(measured - number) <= std::max(kHalfTenth, number * 1e-4);
}

}  // namespace

double DrawnMeasure(Mark::Kind kind, const std::vector<PagePoint>& points) {
  return IsSurface(kind) ? OutlineArea(points) : OutlineLength(points, IsOutline(kind));
}

std::optional<double> ScaleOfLabel(const QString& label) {
  static const RatioForm forms[] = {{"\"=", "'", kPointsOfAnInch},
                                    {"cm:", " feet", kPointsOfAnInch / 2.54},
                                    {"mm:", " feet", kPointsOfAnInch / 25.4}};
  const qsizetype at = label.indexOf(QLatin1String(" @ "));
  if (at < 0) return std::nullopt;
  const QString ratio = label.mid(at + 3);
  for (const RatioForm& form : forms) {
    const QLatin1String between(form.between);
    const qsizetype middle = ratio.indexOf(between);
    if (middle < 0 || !ratio.endsWith(QLatin1String(form.end))) continue;
    const double plan = FractionValue(ratio.left(middle));
    const double feet = Value(ratio.mid(middle + between.size()));
    if (plan > 0 && feet > 0) return feet / (plan * form.paper);
  }
  return std::nullopt;
}

QString MovedLabel(const Mark& mark, const std::vector<PagePoint>& points,
                   const MeasureInForce& inForce) {
  const bool measures = mark.kind != Mark::Kind::Circle && mark.kind != Mark::Kind::Legend;
  if (mark.label.isEmpty() || !measures) return mark.label;
  const double sign = mark.kind == Mark::Kind::CutOut ? -1 : 1;
  const double before = DrawnMeasure(mark.kind, mark.points);
  const double after = DrawnMeasure(mark.kind, points);
  if (const std::optional<double> scale = ScaleOfLabel(mark.label)) {
    const double factor = IsSurface(mark.kind) ? *scale * *scale : *scale;
    if (Says(mark, before * factor)) return WithNumber(sign * after * factor, mark.label);
  }
  const QString now = inForce ? inForce(mark.kind, mark.points) : QString();
  if (!now.isEmpty() && now == mark.label) return inForce(mark.kind, points);
  // At a scale that the label does not name.
  const double number = std::abs(NumberOf(mark.label));
  return WithNumber(before > 0 ? sign * after * (number / before) : 0, mark.label);
}

}  // namespace tamo
