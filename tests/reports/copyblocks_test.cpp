// The figures of the copies, worked out two at a time, against the plain arithmetic of one.
#include "reports/copyblocks.h"

#include <gtest/gtest.h>

#include <random>

#include "common/failure.h"
#include "common/numbers.h"
#include "reports/copyfigures.h"

namespace tamo {
namespace {

const QString kSystem = QStringLiteral("Wall");

MarkupFactors Markup() {
  MarkupFactors factors;
  factors.LOH = .08;
  factors.LTX = .0725;
  factors.LMU = .1;
  factors.MOH = .125;
  factors.MTX = .0825;
  factors.MMU = .15;
  factors.MIOH = .02;
  factors.MITX = .01;
  factors.MIMU = .03;
  return factors;
}

CopyFigures Plain(const PricedBlock& block, double quantity, bool office,
                  StandingFigures& standing) {
  const MarkupFactors k = Markup();
  standing.orderQuantity = WithWaste(block, OrderQuantity(block, quantity, kSystem, standing));
  standing.manhours = Manhours(block, quantity, kSystem, standing);
  CopyFigures figures;
  figures.material = Truncated(standing.orderQuantity * 100);
  figures.labor = Truncated(standing.manhours * 100 + 0.5);
  figures.manhours = standing.manhours;
  if (!office) return figures;
  const double m = ReadWithPoint(figures.material) * block.price;
  figures.materialDollars =
      Raised(m + (k.MOH * m + k.MTX * m + k.MMU * m + k.MIOH * m + k.MITX * m + k.MIMU * m));
  const double labor = standing.manhours * block.wage;
  figures.laborDollars = Rounded(labor + Rounded(k.LOH * labor + k.LTX * labor + k.LMU * labor +
                                                 k.MIOH * labor + k.MITX * labor + k.MIMU * labor));
  return figures;
}

class Dice {
 public:
  explicit Dice(unsigned seed) : random_(seed) {}
  int Below(int end) { return static_cast<int>(random_() % static_cast<unsigned>(end)); }
  // As prices and ratios are typed: a few digits, cents, now and then 0, below 0 or very large.
  double Figure() {
    const double figure = Below(100000) / (Below(2) == 0 ? 100.0 : 1.0);
    switch (Below(60)) {
      case 0:
        return -figure;
      case 1:
        return figure * 1e13;
      case 2:
        return Below(2) == 0 ? 0 : 1e300;
      default:
        return figure + 0.01;
    }
  }
  PricedBlock Block(bool tags) {
    PricedBlock block;
    block.price = Figure();
    block.ratio = Figure();
    block.manhourRatio = Figure();
    block.wage = Figure();
    block.waste = Below(4) == 0 ? Figure() : Below(20);
    block.orderTag = Below(2) == 0 ? OrderTag::Upo : OrderTag::Opu;
    block.laborTag = Below(2) == 0 ? LaborTag::Upm : LaborTag::Mpu;
    if (!tags && Below(3) == 0) block.orderTag = OrderTag::None;
    if (!tags && Below(3) == 0) block.laborTag = LaborTag::None;
    return block;
  }

 private:
  std::mt19937 random_;
};

bool Same(const CopyFigures& a, const CopyFigures& b) {
  return a.material == b.material && a.materialDollars == b.materialDollars && a.labor == b.labor &&
         a.laborDollars == b.laborDollars && a.manhours == b.manhours;
}

// 0 when both refuse the line, which they do alike.
int LinesAlike(const std::vector<PricedBlock>& blocks, double quantity, bool office,
               StandingFigures& standing, StandingFigures& plainStanding) {
  const CopyArithmetic arithmetic(Markup(), office);
  std::vector<CopyFigures> figures;
  std::vector<CopyFigures> plain;
  bool refused = false;
  try {
    for (const PricedBlock& block : blocks) {
      plain.push_back(Plain(block, quantity, office, plainStanding));
      CheckFigures({plain.back().material, plain.back().materialDollars, plain.back().labor,
                    plain.back().laborDollars},
                   kSystem);
    }
  } catch (const RunTimeFailure&) {
    refused = true;
  }
  if (refused) {
    EXPECT_THROW(arithmetic.Work(CopyBlocks(blocks), quantity, kSystem, standing, figures),
                 RunTimeFailure);
    return 0;
  }
  arithmetic.Work(CopyBlocks(blocks), quantity, kSystem, standing, figures);
  EXPECT_EQ(figures.size(), plain.size());
  for (size_t i = 0; i < plain.size(); ++i)
    EXPECT_TRUE(Same(figures[i], plain[i])) << "material " << i << " of " << plain.size();
  EXPECT_EQ(standing.orderQuantity, plainStanding.orderQuantity);
  EXPECT_EQ(standing.manhours, plainStanding.manhours);
  return 1;
}

TEST(CopyBlocks, GiveThePlainFiguresToTheLastDigit) {
  Dice dice(7);
  int alike = 0;
  for (int line = 0; line < 100000; ++line) {
    std::vector<PricedBlock> blocks;
    const bool tags = dice.Below(4) != 0;
    for (int i = 1 + dice.Below(5); i > 0; --i) blocks.push_back(dice.Block(tags));
    StandingFigures standing{dice.Figure(), dice.Figure()};
    StandingFigures plain = standing;
    alike += LinesAlike(blocks, dice.Figure(), dice.Below(2) == 0, standing, plain);
    ASSERT_FALSE(HasFailure()) << "line " << line;
  }
  EXPECT_GT(alike, 50000);
}

TEST(CopyBlocks, TakeOnlyWhatTheyCanWorkOnAtOnce) {
  std::vector<PricedBlock> blocks(3);
  for (PricedBlock& block : blocks) {
    block.price = block.ratio = block.manhourRatio = block.wage = 2;
    block.orderTag = OrderTag::Upo;
    block.laborTag = LaborTag::Mpu;
  }
  StandingFigures standing;
  std::vector<CopyFigures> figures;
  const auto works = [&](double quantity) {
    return CopyBlocks(blocks).Work(quantity, true, Markup(), standing, figures);
  };
  EXPECT_TRUE(works(7));
  EXPECT_EQ(figures[2].material, 350);
  EXPECT_TRUE(works(0));
  EXPECT_FALSE(works(-7));
  EXPECT_FALSE(works(1e15));
  blocks[1].ratio = 0;
  EXPECT_FALSE(works(7));
  EXPECT_FALSE(works(0));
  blocks[1].ratio = 2;
  blocks[2].orderTag = OrderTag::None;
  EXPECT_FALSE(works(7));
}

}  // namespace
}  // namespace tamo
