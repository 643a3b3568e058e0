#pragma once

#include <vector>

#include "schedule/headarea.h"

namespace tamo {

// Where the columns of a table lie: n + 1 borders, left to right. `ruled[i]`: border i is drawn.
struct ColumnBorders {
  std::vector<double> at;
  std::vector<bool> ruled;

  int Count() const { return at.size() < 2 ? 0 : int(at.size()) - 1; }
  // The column that holds x, the nearest one when x lies outside.
  int ColumnAt(double x) const;
  double Left(int column) const { return at[size_t(column)]; }
  double Right(int column) const { return at[size_t(column) + 1]; }
};

// The columns below the heads: by the rules from top to bottom, and by how the text is aligned
// where there are none.
ColumnBorders ColumnsOf(const SheetDrawing& drawing, const std::vector<TextLine>& lines,
                        const HeadArea& heads, const PageBox& frame);

// The heads that have no other head below them.
std::vector<Phrase> LeavesOf(const HeadArea& heads);

}  // namespace tamo
