#pragma once

#include <QChar>
#include <vector>

#include "schedule/sheetword.h"

namespace tamo {

// A letter in the frame of its own reading: `from` and `to` along the base line, `base` across it
// (downwards, seen by who reads it).
struct Letter {
  QChar letter;
  double from = 0;
  double to = 0;
  double base = 0;
  double size = 0;
  int piece = 0;
  bool fixed = false;
};

bool IsBlank(QChar letter);
bool IsUnknown(QChar letter);  // no letter that the file tells

// The letters of one reading direction, in the order of drawing, each drawn place once.
std::vector<Letter> LettersOf(const std::vector<TextPiece>& texts, Way way);

// The nearest quarter turn of a base line; false when it is slanted.
bool WayOf(const TextPiece& piece, Way& way);

// From the frame of a reading direction back onto the sheet.
PageBox OnSheet(const PageBox& box, Way way);
double BaseOnSheet(double base, Way way);

}  // namespace tamo
