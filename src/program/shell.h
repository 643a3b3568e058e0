#pragma once

#include <functional>

#include "common/kit.h"
#include "plans/ostform.h"
#include "workspace/frontwindows.h"
#include "workspace/tamoform.h"

namespace tamo {

// The two shells: which menus stand where, which form is in front, and how the program ends.
class Shell : public FrontWindows {
 public:
  // The forms are used only once they are made.
  Shell(const Kit& kit, TamoForm& main, SettingsForm& settings, OSTForm& ost)
      : kit_(kit), main_(main), settings_(settings), ost_(ost) {}

  void EnterMode(int mode) override;
  void BringUpShell() override;
  void ShowMainForm() override;
  void HideMainForm() override;
  void ShowTitles() override;
  void AskForEstimatorNumber() override;

  bool Online() const { return kit_.shared.GUIText == QLatin1String("2"); }
  // The form that carries the menus in the mode in force.
  Form& ShellForm() const;
  // Exit of either menu bar, and the close boxes of both shells.
  void ExitMain();
  void ExitOst();
  bool CloseMain();
  bool CloseOst();
  bool MayEnd();

  bool Running() const { return running_; }
  std::function<void()> onEnded;
  // Saves what an open form keeps until it is left.
  std::function<void()> beforeEnd;

 private:
  void EndProgram();
  void ShowMenus(Form& form, std::initializer_list<const char*> names, bool shown);

  const Kit kit_;
  TamoForm& main_;
  SettingsForm& settings_;
  OSTForm& ost_;
  bool running_ = true;
};

}  // namespace tamo
