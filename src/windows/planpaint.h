#pragma once

#include <QImage>

#include "plans/mark.h"
#include "plans/picture.h"
#include "plans/snapindex.h"

class QPainter;

namespace tamo {

// A picture as an image, without a copy; `picture` outlives it.
QImage ImageOf(const Picture& picture);

// Paints a mark; the painter works in points of the page.
void PaintMark(QPainter& painter, const Mark& mark, double markerSize);

// The points of the chosen mark as handles, the one in hand filled; `scale` as below.
void PaintHandles(QPainter& painter, const Mark& mark, int point, double scale);

// The sign of what the cross hair has taken, with its name: a square at an end, a cross at an
// intersection, a triangle at a middle, a right angle at a foot, a diamond on a line. The painter
// works in points of the page, `scale` pixels each.
void PaintSnapSign(QPainter& painter, const SnapHit& hit, double scale);

}  // namespace tamo
