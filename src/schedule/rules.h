#pragma once

#include <vector>

#include "plans/pagecontent.h"

namespace tamo {

// A straight line along or across the sheet. Points.
struct Rule {
  bool along = true;  // from left to right; else from top to bottom
  double at = 0;      // its y when along, else its x
  double from = 0;
  double to = 0;

  double Length() const { return to - from; }
};

// The straight lines of a drawing, whether drawn as lines, frames or thin filled areas; pieces of
// one line that follow each other are one. Curves, slanted and very short lines, and white ones,
// are left out.
std::vector<Rule> RulesOf(const std::vector<PathPiece>& paths);

// The small triangles of a drawing, as revisions are numbered with.
std::vector<PageBox> DeltasOf(const std::vector<PathPiece>& paths);

}  // namespace tamo
