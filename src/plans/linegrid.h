#pragma once

#include <optional>
#include <vector>

#include "plans/linecells.h"

namespace tamo {

// Finds the line of a sheet that a place lies on, among very many. Made once, then only read.
class LineGrid {
 public:
  explicit LineGrid(std::vector<PageLine> lines);

  // The place nearest to `at` on a line of about the direction `dx dy` (of length 1), at most
  // `reach` points away.
  std::optional<PagePoint> Nearest(PagePoint at, double dx, double dy, double reach) const;
  const std::vector<PageLine>& Lines() const { return lines_; }

 private:
  std::vector<PageLine> lines_;
  LineCells cells_;
};

// Places along the lines of a sheet, evenly by length, with the direction of the line there.
struct LineSample {
  PagePoint at;
  double dx = 1;
  double dy = 0;
};
std::vector<LineSample> SamplesOf(const std::vector<PageLine>& lines, int most);

}  // namespace tamo
