#include "reports/copyfigures.h"

#include <cmath>

#include "common/numbers.h"

namespace tamo {

// A ratio of 0 is not looked for: what is divided by it is no number, and neither are the figures.
inline CopyFigures CopyArithmetic::Of(const PricedBlock& block, double quantity,
                                      StandingFigures& standing) const {
  if (block.orderTag != OrderTag::None) {
    const double order =
        block.orderTag == OrderTag::Opu ? quantity * block.ratio : quantity / block.ratio;
    standing.orderQuantity = WithWaste(block, order);
  } else {
    standing.orderQuantity = WithWaste(block, standing.orderQuantity);
  }
  if (block.laborTag != LaborTag::None) {
    standing.manhours = block.laborTag == LaborTag::Mpu ? quantity * block.manhourRatio
                                                        : quantity / block.manhourRatio;
  }
  CopyFigures figures;
  figures.material = Truncated(standing.orderQuantity * 100);
  figures.labor = Truncated(standing.manhours * 100 + 0.5);
  figures.manhours = standing.manhours;
  if (office_ && std::isfinite(figures.material)) {
    figures.materialDollars = MaterialDollars(figures.material, block.price);
    figures.laborDollars = LaborDollars(standing.manhours, block.wage);
  }
  return figures;
}

inline double CopyArithmetic::MaterialDollars(double hundredths, double price) const {
  const double m = ReadWithPoint(hundredths) * price;
  const double markup = markups_.MOH * m + markups_.MTX * m + markups_.MMU * m + markups_.MIOH * m +
                        markups_.MITX * m + markups_.MIMU * m;
  return Raised(m + markup);
}

inline double CopyArithmetic::LaborDollars(double manhours, double wage) const {
  const double labor = manhours * wage;
  const double markup =
      Rounded(markups_.LOH * labor + markups_.LTX * labor + markups_.LMU * labor +
              markups_.MIOH * labor + markups_.MITX * labor + markups_.MIMU * labor);
  return Rounded(labor + markup);
}

// What is wrong is told in the order in which the lines are made.
void CopyArithmetic::Refuse(const PricedBlock& block, const CopyFigures& figures,
                            const QString& system) const {
  if (block.orderTag == OrderTag::Upo && block.ratio == 0) RefuseOrderRatio(block, system);
  CheckFigures({figures.material, figures.materialDollars}, system);
  if (block.laborTag == LaborTag::Upm && block.manhourRatio == 0) RefuseManhourRatio(block, system);
  CheckFigures({figures.labor, figures.laborDollars}, system);
}

void CopyArithmetic::WorkEach(const std::vector<PricedBlock>& blocks, double quantity,
                              const QString& system, StandingFigures& standing,
                              std::vector<CopyFigures>& figures) const {
  figures.resize(blocks.size());
  for (size_t i = 0; i < blocks.size(); ++i) {
    figures[i] = Of(blocks[i], quantity, standing);
    const CopyFigures& of = figures[i];
    if (!std::isfinite(of.material + of.materialDollars + of.labor + of.laborDollars))
      Refuse(blocks[i], of, system);
  }
}

void CopyArithmetic::Work(const CopyBlocks& blocks, double quantity, const QString& system,
                          StandingFigures& standing, std::vector<CopyFigures>& figures) const {
  const StandingFigures before = standing;
  if (blocks.Work(quantity, office_, markups_, standing, figures)) return;
  standing = before;
  WorkEach(blocks.Blocks(), quantity, system, standing, figures);
}

}  // namespace tamo
