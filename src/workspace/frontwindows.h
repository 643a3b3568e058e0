#pragma once

namespace tamo {

// Which of the two main windows stands in front: what the project panel and the settings ask for.
class FrontWindows {
 public:
  virtual ~FrontWindows() = default;
  // Mode 1 (On Site Takeoff: the main form carries the menus) or 2 (Online Plans: OST does): sets
  // GUIText, the menus and captions of both forms, and brings the shell to the front.
  virtual void EnterMode(int mode) = 0;
  // Brings the shell of the mode in force to the front; the other form is hidden.
  virtual void BringUpShell() = 0;
  // Shows the main form so that its panel or its list can be seen; in mode 2 OST owns it.
  virtual void ShowMainForm() = 0;
  virtual void HideMainForm() = 0;
  // The titles say whether the open project can only be read, and why.
  virtual void ShowTitles() = 0;
  // The Settings form with the focus on the estimator's number.
  virtual void AskForEstimatorNumber() = 0;
};

}  // namespace tamo
