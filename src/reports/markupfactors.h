#pragma once

#include "records/markupsfile.h"

namespace tamo {

// The twelve markups as factors; a text that is no number is 0.
struct MarkupFactors {
  MarkupFactors() = default;
  explicit MarkupFactors(const Markups& texts);
  double LOH = 0, LTX = 0, LMU = 0;
  double MOH = 0, MTX = 0, MMU = 0;
  double BLOH = 0, BLTX = 0, BLMU = 0;
  double MIOH = 0, MITX = 0, MIMU = 0;

  double BottomLineSum() const { return BLOH + BLTX + BLMU + MIOH + MITX + MIMU; }
};

}  // namespace tamo
