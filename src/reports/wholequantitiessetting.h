#pragma once

namespace tamo {

// Whether the bill and the copies read the whole quantity column; kept with the settings.
class WholeQuantitiesSetting {
 public:
  virtual ~WholeQuantitiesSetting() = default;
  virtual bool WholeQuantities() const = 0;
  virtual void SetWholeQuantities(bool on) = 0;
};

}  // namespace tamo
