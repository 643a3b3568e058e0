#pragma once

#include <vector>

#include "plans/comparedsheets.h"
#include "plans/pagecontent.h"

namespace tamo {

// The lines of a sheet by which it is laid over another one.
struct SheetLinework {
  std::vector<PageLine> lines;
  PageSize size;
  double fineness = 0.4;  // points that one and the same line may lie off itself: more on a scan
};

// Of a drawing: what can be seen of its lines and the outlines of its areas, and the base lines of
// its texts.
SheetLinework LineworkOf(const PageContent& content);

// Lays the old sheet over the new one by what both have: at any place, in any size, turned by any
// quarters and a little askew. The measure says how much of their lines lie on each other then;
// where that is little, or no more than by chance, the sheets are laid as their paper is, and the
// alignment is not sure.
SheetAlignment AlignSheets(const SheetLinework& old, const SheetLinework& now);

// The same from a fit that is nearly right, as by two points. Kept as given where the lines do not
// say better.
SheetAlignment RefinedFit(const SheetLinework& old, const SheetLinework& now, const SheetFit& fit);

}  // namespace tamo
