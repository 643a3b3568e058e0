#pragma once

#include <vector>

#include "plans/pdfdraw.h"

class QPainter;

namespace tamo {

// A text that was found on a sheet.
struct FoundBox {
  PageBox box;          // points of the page
  bool walked = false;  // the one that is looked at
};

// What is painted over the pictures of the sheet in front. The painter works in points of the page,
// `scale` pixels each; nothing is worked out here.

// All marks, and the totals of counting groups.
void PaintMarks(QPainter& painter, const PdfDraw& viewer);
// The handles of the chosen mark, and that mark as it is being moved.
void PaintChosen(QPainter& painter, const PdfDraw& viewer, double scale);
// Frames that leave the text readable; the one that is looked at is thick and has a ground.
void PaintFound(QPainter& painter, const std::vector<FoundBox>& boxes, double scale);
// What differs from the sheet laid under this one; the place in hand is thick.
void PaintChanged(QPainter& painter, const PdfDraw& viewer, double scale);
// The symbols that were found alike, while each is asked about: the one in hand thick, those that
// were accepted green, refused ones thin.
void PaintLikes(QPainter& painter, PdfDraw& viewer, double scale);
// The line, the outline and the box in work.
void PaintWork(QPainter& painter, const PdfDraw& viewer, double scale);
// The cross hair, with the sign of what it has taken, while something is drawn or pointed at.
void PaintCrossHair(QPainter& painter, PdfDraw& viewer, double scale);

}  // namespace tamo
