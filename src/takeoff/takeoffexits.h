#pragma once

namespace tamo {

// Where a takeoff form goes when it is done, or when no project is open.
class TakeoffExits {
 public:
  virtual ~TakeoffExits() = default;
  virtual void ShowMainForm() = 0;      // visible, in front, with the focus
  virtual void ShowProjectPanel() = 0;  // JobNFOFrame visible, the focus on JobName
  virtual void ShowOST() = 0;           // visible, in front, with the focus
};

}  // namespace tamo
