#pragma once

#include <vector>

#include "schedule/rules.h"
#include "schedule/sheetword.h"

namespace tamo {

// A sheet as the reader of schedules sees it: words and straight lines. Points.
struct SheetDrawing {
  PageSize size;
  std::vector<Word> words;
  std::vector<Rule> rules;
};

// The words and rules of a page; the numbers of revision deltas are left out of the words.
SheetDrawing DrawingOf(const PageContent& content);

// What of a page lies in a box or touches it.
PageContent Near(const PageContent& content, const PageBox& box);

// The sheet turned so that texts of `way` read to the right.
SheetDrawing Turned(const SheetDrawing& drawing, Way way);
// A place on the turned sheet back on the sheet of `size` as it lay before.
PageBox TurnedBack(const PageBox& box, Way way, PageSize size);
PageBox TurnedBox(const PageBox& box, Way way, PageSize size);

// The part of the sheet inside a box: words whose middle is inside, rules cut to it.
SheetDrawing Inside(const SheetDrawing& drawing, const PageBox& box);

PageBox Grown(const PageBox& box, double by);
bool Holds(const PageBox& box, double x, double y);

}  // namespace tamo
