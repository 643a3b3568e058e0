#pragma once

#include <optional>

#include "plans/mark.h"

namespace tamo {

// How a sheet is laid over another one: turned, sized and moved, never mirrored. Both sheets in
// points from the top left corner as they are looked at.
struct SheetFit {
  double a = 1;   // size times the cosine of the turn
  double b = 0;   // size times its sine; a turn from x to y is clockwise to the eye
  double dx = 0;  // points
  double dy = 0;

  PagePoint To(PagePoint at) const { return {a * at.x - b * at.y + dx, b * at.x + a * at.y + dy}; }
  PagePoint Back(PagePoint at) const;
  double Size() const;   // 2: twice as large; never 0
  double Turn() const;   // degrees clockwise, -180 to 180
  int Quarters() const;  // the nearest quarter turns, 0 to 3
};

SheetFit Fit(double size, double degrees, double dx, double dy);
// First `first`, then `next`.
SheetFit Joined(const SheetFit& first, const SheetFit& next);
// What takes two places to two others; nothing where those of one pair are the same, or the sizes
// differ more than any two prints of a sheet.
std::optional<SheetFit> FitByPoints(PagePoint from1, PagePoint from2, PagePoint to1, PagePoint to2);
// A sheet of one size in the middle of another, as large as it goes; of equal ones as it is.
SheetFit FitInto(PageSize sheet, PageSize into);
// How far apart the two take the corners of a sheet, at most. Points.
double FarthestApart(const SheetFit& one, const SheetFit& other, PageSize sheet);

}  // namespace tamo
