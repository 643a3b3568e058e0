#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "plans/pagecontent.h"

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
  template <typename Visit>
  void CellsOf(const PageLine& line, Visit visit) const;
  int Column(double x) const;
  int Row(double y) const;

  std::vector<PageLine> lines_;
  PageBox box_;
  double cell_ = 8;  // points
  int columns_ = 1;
  int rows_ = 1;
  std::vector<uint32_t> begins_;  // of each cell in items_, and the end
  std::vector<uint32_t> items_;   // numbers of lines
};

// Places along the lines of a sheet, evenly by length, with the direction of the line there.
struct LineSample {
  PagePoint at;
  double dx = 1;
  double dy = 0;
};
std::vector<LineSample> SamplesOf(const std::vector<PageLine>& lines, int most);

}  // namespace tamo
