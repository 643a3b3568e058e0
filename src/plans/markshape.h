#pragma once

#include <QString>
#include <vector>

#include "plans/mark.h"

namespace tamo {

// A mark as it is painted, in points of the page as it is looked at. The window paints this and the
// file's own picture of the mark is written from it, so a mark looks the same here and in any other
// reader.
struct MarkShape {
  struct Stroke {
    PagePoint from;
    PagePoint to;
  };
  std::vector<Stroke> strokes;  // of a line: itself and a short bar across each end
  std::vector<PagePoint> way;   // of a polyline and an outline: its points
  bool closed = false;
  bool filled = false;  // lightly, with kMarkFill of the colour
  bool dashed = false;  // in dashes of kMarkDash points
  bool circle = false;
  PagePoint centre;
  double radius = 0;
  double width = 0.75;
  // The label: the middle of its base line, the direction of reading in radians (clockwise on the
  // page, never upside down), the height of its letters.
  QString text;
  PagePoint textAt;
  double textAngle = 0;
  double textSize = 9;
  double textWidth = 0;
};

// How much of an area's colour lies over the plan.
inline constexpr double kMarkFill = 0.15;
inline constexpr double kMarkDash = 6;

// `markerSize` is the diameter of a counting circle.
MarkShape ShapeOf(const Mark& mark, double markerSize);

// The width of a text in Helvetica, in points.
double LetterWidth(const QString& text, double size);

}  // namespace tamo
