#pragma once

#include <vector>

#include "reports/markupfactors.h"
#include "reports/rollup.h"

namespace tamo {

// What the two detail lines of one material under a takeoff line of a copy say.
struct CopyFigures {
  double material = 0;         // hundredths of order units
  double materialDollars = 0;  // whole ones; Office Copy only, as the labor's
  double labor = 0;            // hundredths of manhours
  double laborDollars = 0;
  double manhours = 0;  // as they are
};

// The materials of a system, prepared for the millions of figures of a copy: two of them are worked
// on at once, and each ratio is a factor and a divisor of which one is 1, so that all go through
// the same steps.
class CopyBlocks {
 public:
  // `blocks` outlive it.
  explicit CopyBlocks(const std::vector<PricedBlock>& blocks);

  const std::vector<PricedBlock>& Blocks() const { return blocks_; }
  // No block takes over a figure that another one left.
  bool StandAlone() const { return standAlone_; }

  // What CopyArithmetic gives, to the last digit. False, and nothing of use in `figures` and
  // `standing`, when blocks don't stand alone or a figure is below 0, very large or none: then each
  // must be looked at for itself. The dollars are left at 0 unless it is an `office` copy.
  bool Work(double quantity, bool office, const MarkupFactors& markups, StandingFigures& standing,
            std::vector<CopyFigures>& figures) const;

 private:
  using Pair [[gnu::vector_size(16)]] = double;
  using Mask = decltype(Pair{} < Pair{});
  struct Two {
    Pair orderFactor{1, 1}, orderDivisor{1, 1};
    Pair manhourFactor{1, 1}, manhourDivisor{1, 1};
    Pair waste{}, price{}, wage{};  // waste as a part of 1
  };
  struct Figures {
    Pair orderQuantity, manhours;
    Pair material, labor;
    Pair materialDollars{}, laborDollars{};
    Mask fit;

    CopyFigures Left() const {
      return {material[0], materialDollars[0], labor[0], laborDollars[0], manhours[0]};
    }
    CopyFigures Right() const {
      return {material[1], materialDollars[1], labor[1], laborDollars[1], manhours[1]};
    }
  };

  static Pair Whole(Pair numbers);
  static Mask Fit(Pair numbers);
  static Figures WorkTwo(const Two& two, double quantity);
  static void AddDollars(const Two& two, const MarkupFactors& markups, Figures& figures);

  const std::vector<PricedBlock>& blocks_;
  std::vector<Two> twos_;  // of an odd number of blocks the last is half of one
  bool standAlone_ = true;
};

}  // namespace tamo
