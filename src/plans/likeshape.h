#pragma once

#include <QString>

#include "plans/likepose.h"
#include "plans/likesheet.h"

namespace tamo {

// One line of the symbol that is looked for.
struct ShapeStroke {
  LikeStroke stroke;
  // As far as the symbol goes on straight along it: lines of the sheet that lie within stand for
  // it, however the drawing divides them.
  PageLine reach;
};

// The symbol in a box, taken from the sheet's lines. Its places are those of the sheet.
struct LikeShape {
  QString problem;  // why nothing can be looked for, as a sentence; "" when it can
  std::vector<ShapeStroke> strokes;
  std::vector<PageLine> ink;  // its lines, curves in their parts
  std::vector<PagePoint> hull;
  PagePoint middle;
  double size = 0;       // its largest measure, points
  double tolerance = 0;  // points that a line may lie off
  double length = 0;     // of all its strokes
  QString letters;       // inside the hull, in the order of the alphabet
};

LikeShape ShapeInBox(const LikeSheet& sheet, const PageBox& box);

// The letters inside an outline, in the order of the alphabet.
QString LettersIn(const std::vector<LikeLetter>& letters, const std::vector<PagePoint>& hull);

// More lines than a symbol has.
inline constexpr size_t kMostShapeStrokes = 2000;

}  // namespace tamo
