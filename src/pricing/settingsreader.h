#pragma once

namespace tamo {

// The settings are read when the price library is made ready before anybody else asked for them.
class SettingsReader {
 public:
  virtual ~SettingsReader() = default;
  virtual void LoadSettings() = 0;
};

}  // namespace tamo
