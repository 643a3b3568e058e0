#include "plans/markshape.h"

#include <algorithm>
#include <cmath>

#include "plans/outline.h"

namespace tamo {
namespace {

constexpr double kBar = 4.5;      // half the bar across a line's end
constexpr double kTextAbove = 3;  // between the line and its label
constexpr double kQuarterTurn = 1.57079632679489661923;

// Widths of the letters from blank to tilde in thousandths of the size.
constexpr short kWidths[] = {
    278, 278, 355, 556, 556, 889, 667, 191, 333, 333, 389, 584, 278, 333,  278, 278, 556, 556, 556,
    556, 556, 556, 556, 556, 556, 556, 278, 278, 584, 584, 584, 556, 1015, 667, 667, 722, 722, 667,
    611, 778, 722, 278, 500, 667, 556, 833, 722, 778, 667, 778, 722, 667,  611, 722, 667, 944, 667,
    667, 611, 278, 278, 278, 469, 556, 333, 556, 556, 500, 556, 556, 278,  556, 556, 222, 222, 500,
    222, 833, 556, 556, 556, 556, 333, 500, 278, 556, 500, 722, 500, 500,  500, 334, 260, 334, 584};

// Over the line from one place to the other, reading from left to right, and upwards beside an
// upright line.
void LabelOver(MarkShape& shape, PagePoint from, PagePoint to) {
  double angle = std::atan2(to.y - from.y, to.x - from.x);
  constexpr double kShake = 1e-6;
  if (angle >= kQuarterTurn - kShake) angle -= 2 * kQuarterTurn;
  if (angle < -kQuarterTurn - kShake) angle += 2 * kQuarterTurn;
  shape.textAngle = angle;
  const double away = kTextAbove + shape.width / 2;
  shape.textAt = {(from.x + to.x) / 2 + std::sin(angle) * away,
                  (from.y + to.y) / 2 - std::cos(angle) * away};
}

// A polyline's label stands over its longest part, that of an outline in its middle.
void ShapeWay(MarkShape& shape, const Mark& mark) {
  shape.way = mark.points;
  shape.closed = IsOutline(mark.kind);
  shape.filled = mark.kind == Mark::Kind::Area;
  shape.dashed = mark.kind == Mark::Kind::CutOut;
  if (shape.closed && mark.points.size() > 2) {
    shape.textAt = RoomiestPlace(mark.points);
    shape.textAt.y += shape.textSize / 3;
    return;
  }
  size_t longest = 0;
  double most = -1;
  for (size_t i = 0; i + 1 < mark.points.size(); ++i) {
    const double length = Distance(mark.points[i], mark.points[i + 1]);
    if (length <= most) continue;
    most = length;
    longest = i;
  }
  LabelOver(shape, mark.points[longest],
            mark.points[std::min(longest + 1, mark.points.size() - 1)]);
}

}  // namespace

double LetterWidth(const QString& text, double size) {
  int sum = 0;
  for (const QChar c : text) {
    const ushort code = c.unicode();
    sum += code >= 32 && code < 127 ? kWidths[code - 32] : 556;
  }
  return sum * size / 1000;
}

MarkShape ShapeOf(const Mark& mark, double markerSize) {
  MarkShape shape;
  shape.width = mark.width;
  if (mark.points.empty()) return shape;
  if (mark.kind == Mark::Kind::Circle) {
    shape.circle = true;
    shape.centre = mark.points[0];
    shape.radius = markerSize / 2;
    return shape;
  }
  shape.text = mark.title.isEmpty() ? mark.label : mark.title + QStringLiteral(": ") + mark.label;
  shape.textWidth = LetterWidth(shape.text, shape.textSize);
  if (mark.kind != Mark::Kind::Line) {
    ShapeWay(shape, mark);
    return shape;
  }
  const PagePoint from = mark.points.front();
  const PagePoint to = mark.points.back();
  const double angle = std::atan2(to.y - from.y, to.x - from.x);
  const PagePoint across = {-std::sin(angle) * kBar, std::cos(angle) * kBar};
  shape.strokes.push_back({from, to});
  for (const PagePoint end : {from, to}) {
    shape.strokes.push_back(
        {{end.x - across.x, end.y - across.y}, {end.x + across.x, end.y + across.y}});
  }
  LabelOver(shape, from, to);
  return shape;
}

}  // namespace tamo
