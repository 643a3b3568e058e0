#pragma once

#include <QString>
#include <vector>

#include "schedule/sheetdrawing.h"

namespace tamo {

// Words of one line that belong together: no more than a blank between them, no rule.
struct Phrase {
  QString text;
  PageBox box;
  double base = 0;
  double size = 0;
  std::vector<int> words;  // indices into the drawing, left to right
  bool torn = false;       // a border goes through it at a blank

  double MidX() const { return (box.left + box.right) / 2; }
  double MidY() const { return (box.top + box.bottom) / 2; }
};

// The phrases on one base line, left to right.
struct TextLine {
  double base = 0;
  double size = 0;
  std::vector<Phrase> phrases;

  double Top() const { return base - 0.75 * size; }
  double Bottom() const { return base + 0.1 * size; }
};

// The lines of those words that read to the right, from the top down.
std::vector<TextLine> LinesOf(const SheetDrawing& drawing);

// The turned texts of a drawing, one phrase a line of them; `words` is in the order of reading.
std::vector<Phrase> TurnedPhrasesOf(const SheetDrawing& drawing);

// Whether a rule stands between two words of a line and is as high as they are: one that only pokes
// into the line from below parts nothing.
bool RuleBetween(const SheetDrawing& drawing, const Word& left, const Word& right);

// The size that most words have.
double UsualSize(const SheetDrawing& drawing);

}  // namespace tamo
