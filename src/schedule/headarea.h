#pragma once

#include <QString>
#include <vector>

#include "schedule/textline.h"

namespace tamo {

// Where the heads of a table stand. Points on the drawing.
struct HeadArea {
  bool found = false;
  double top = 0;
  double bottom = 0;                // here the rows begin
  std::vector<Phrase> phrases;      // the heads that read to the right
  std::vector<Phrase> turned;       // and those that are turned
  QString title;                    // of a row over the heads
  int bodyLines = 0;                // of the first rows: how many lines,
  std::vector<double> bodyMiddles;  // and the middles of all texts in them
};

// Looks for the heads in the upper part of a table's drawing. `across`: the levels of its rules
// that cross most of it; `whole`: of those that go from side to side.
HeadArea FindHeads(const SheetDrawing& drawing, const std::vector<TextLine>& lines,
                   const std::vector<double>& across, const std::vector<double>& whole);

// Whether a phrase is worded as a head.
bool IsHeadPhrase(const Phrase& phrase);
// How many of a line's phrases are.
int HeadPhrases(const TextLine& line);
// A line that can only be heads: repeated over a further part of a table.
bool IsHeadLine(const TextLine& line);

}  // namespace tamo
