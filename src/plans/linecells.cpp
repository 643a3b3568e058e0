#include "plans/linecells.h"

namespace tamo {

void LineCells::Lay(const LineCellSize& size) {
  const double area = std::max(1.0, box_.Width()) * std::max(1.0, box_.Height());
  cell_ = std::max({size.smallest, std::sqrt(area / size.mostCells), box_.Width() / size.mostAcross,
                    box_.Height() / size.mostAcross});
  columns_ = static_cast<int>(box_.Width() / cell_) + 1;
  rows_ = static_cast<int>(box_.Height() / cell_) + 1;
  begins_.assign(static_cast<size_t>(columns_) * static_cast<size_t>(rows_) + 1, 0);
}

}  // namespace tamo
