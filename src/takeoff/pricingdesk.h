#pragma once

#include <QString>

namespace tamo {

// Where a system that does not exist yet is priced.
class PricingDesk {
 public:
  virtual ~PricingDesk() = default;
  // Shows Pricing with `system` in its Description and the focus there.
  virtual void ShowWithName(const QString& system) = 0;
};

}  // namespace tamo
