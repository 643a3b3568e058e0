#pragma once

#include <QString>

namespace tamo {

// Where a system that does not exist yet is priced.
class MissingSystemPricing {
 public:
  virtual ~MissingSystemPricing() = default;
  // Shows Pricing with `system` in its Description and the focus there.
  virtual void ShowWithName(const QString& system) = 0;
};

}  // namespace tamo
