#pragma once

#include <QString>

namespace tamo {

// The scale in force, as its three fields hold it.
struct ScaleTexts {
  QString scale1;
  QString scale2;
  QString text5;
};

struct MeasuredLine {
  bool scaled = false;  // false: there is no scale, the length stays in paper units
  double length = 0;    // feet when scaled
  QString label;        // what stands behind the length on the plan
};

// What a line of `paperLength` (in the viewer's paper unit) is by the scale. `plan` is the plan
// length of the scale as a number, 0 when its text is none: then the length is taken over as it is.
// `unitName` is the viewer's ("feet", "cm", "mm"), `label` the viewer's own label.
MeasuredLine ScaledLine(double paperLength, double plan, const ScaleTexts& scale,
                        const QString& unitName, const QString& label);

struct MeasuredArea {
  bool scaled = false;  // false: there is no scale, the area stays in square paper units
  double area = 0;      // square feet when scaled
  QString label;
};

// The same of an area in square paper units. Unlike a length it needs both numbers of the scale.
MeasuredArea ScaledArea(double paperArea, double plan, const ScaleTexts& scale,
                        const QString& unitName, const QString& label);

// Feet by which a measure may be off a dimension and still be right.
inline constexpr double kRight = 0.05;
// How far a measured length is off a dimension that the plan states, in words; both in feet.
QString CheckInWords(double measured, double known);

// The zoom of a step: the whole part of (step x 0.1 + 0.3) x 100 per cent. Step 1 is 40, step 7 is
// 100. Any step gives a number that an int holds.
int ZoomPerCent(double step);

}  // namespace tamo
