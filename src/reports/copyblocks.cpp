#include "reports/copyblocks.h"

namespace tamo {

CopyBlocks::CopyBlocks(const std::vector<PricedBlock>& blocks)
    : blocks_(blocks), twos_((blocks.size() + 1) / 2) {
  for (size_t i = 0; i < blocks.size(); ++i) {
    const PricedBlock& block = blocks[i];
    Two& two = twos_[i / 2];
    const size_t side = i % 2;
    (block.orderTag == OrderTag::Opu ? two.orderFactor : two.orderDivisor)[side] = block.ratio;
    (block.laborTag == LaborTag::Mpu ? two.manhourFactor : two.manhourDivisor)[side] =
        block.manhourRatio;
    two.waste[side] = block.waste / 100;
    two.price[side] = block.price;
    two.wage[side] = block.wage;
    if (block.orderTag == OrderTag::None || block.laborTag == LaborTag::None) standAlone_ = false;
  }
}

// Of numbers from 0 to 2 to the 50th, the largest whole ones that are not above them: added to a
// number whose last digit is worth 1, they lose their fraction.
inline CopyBlocks::Pair CopyBlocks::Whole(Pair numbers) {
  constexpr double kLastDigitIsOne = 3LL << 51;
  const Pair nearest = (numbers + kLastDigitIsOne) - kLastDigitIsOne;
  return nearest > numbers ? nearest - 1 : nearest;
}

inline CopyBlocks::Mask CopyBlocks::Fit(Pair numbers) {
  constexpr double kEnd = 1LL << 50;
  return (numbers >= 0) & (numbers < kEnd);
}

inline CopyBlocks::Figures CopyBlocks::WorkTwo(const Two& two, double quantity) {
  Figures figures;
  const Pair order = quantity * two.orderFactor / two.orderDivisor;
  figures.orderQuantity = order + two.waste * order;
  figures.manhours = quantity * two.manhourFactor / two.manhourDivisor;
  const Pair material = figures.orderQuantity * 100;
  const Pair labor = figures.manhours * 100 + 0.5;
  figures.fit = Fit(material) & Fit(labor);
  figures.material = Whole(material);
  figures.labor = Whole(labor);
  return figures;
}

inline void CopyBlocks::AddDollars(const Two& two, const MarkupFactors& markups, Figures& figures) {
  const Pair m = figures.material / 100 * two.price;
  const Pair material = m +
                        (markups.MOH * m + markups.MTX * m + markups.MMU * m + markups.MIOH * m +
                         markups.MITX * m + markups.MIMU * m) +
                        0.9;
  const Pair labor = figures.manhours * two.wage;
  const Pair markup = markups.LOH * labor + markups.LTX * labor + markups.LMU * labor +
                      markups.MIOH * labor + markups.MITX * labor + markups.MIMU * labor + 0.5;
  const Pair marked = labor + Whole(markup) + 0.5;
  figures.fit = figures.fit & Fit(material) & Fit(markup) & Fit(marked);
  figures.materialDollars = Whole(material);
  figures.laborDollars = Whole(marked);
}

bool CopyBlocks::Work(double quantity, bool office, const MarkupFactors& markups,
                      StandingFigures& standing, std::vector<CopyFigures>& figures) const {
  if (!standAlone_ || blocks_.empty()) return false;
  figures.resize(blocks_.size());
  Mask fit{-1, -1};
  CopyFigures* to = figures.data();
  const CopyFigures* const end = to + figures.size();
  for (const Two& two : twos_) {
    Figures of = WorkTwo(two, quantity);
    if (office) AddDollars(two, markups, of);
    fit = fit & of.fit;
    *to++ = of.Left();
    standing = {of.orderQuantity[0], of.manhours[0]};
    if (to == end) break;
    *to++ = of.Right();
    standing = {of.orderQuantity[1], of.manhours[1]};
  }
  return fit[0] != 0 && fit[1] != 0;
}

}  // namespace tamo
