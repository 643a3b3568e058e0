#pragma once

#include <QString>

namespace tamo {

// The field on the pricing form that shows the sum of the bottom line items.
class BottomLineFigure {
 public:
  virtual ~BottomLineFigure() = default;
  virtual void SetTotalBL(const QString& text) = 0;
};

}  // namespace tamo
