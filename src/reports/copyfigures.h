#pragma once

#include <QString>
#include <vector>

#include "reports/copyblocks.h"
#include "reports/markupfactors.h"
#include "reports/rollup.h"

namespace tamo {

// How a copy works out its figures. It stands as long as the rows of the copy.
class CopyArithmetic {
 public:
  CopyArithmetic(const MarkupFactors& markups, bool office) : markups_(markups), office_(office) {}
  bool Office() const { return office_; }

  // The figures of each material for `quantity` takeoff units of the system. Raises what rollup.h
  // raises.
  void Work(const CopyBlocks& blocks, double quantity, const QString& system,
            StandingFigures& standing, std::vector<CopyFigures>& figures) const;

 private:
  void WorkEach(const std::vector<PricedBlock>& blocks, double quantity, const QString& system,
                StandingFigures& standing, std::vector<CopyFigures>& figures) const;
  CopyFigures Of(const PricedBlock& block, double quantity, StandingFigures& standing) const;
  void Refuse(const PricedBlock& block, const CopyFigures& figures, const QString& system) const;
  double MaterialDollars(double hundredths, double price) const;
  double LaborDollars(double manhours, double wage) const;

  MarkupFactors markups_;
  bool office_;
};

}  // namespace tamo
