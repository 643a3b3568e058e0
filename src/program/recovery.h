#pragma once

#include <QList>

#include "common/kit.h"
#include "program/shell.h"
#include "records/recoveryfile.h"
#include "takeoff/bottomline.h"
#include "workspace/settingsform.h"
#include "workspace/tamoform.h"

namespace tamo {

// Keeps what waits in the settings, the project panel and the bottom line for its last step, and
// offers what a run that crashed had kept: settings and new projects at the start, the rest when
// its project is opened. Yes puts it back into the form's fields, where it waits again; No drops
// it.
class Recovery {
 public:
  struct Forms {
    Shell& shell;
    SettingsForm& settings;
    TamoForm& main;
    BottomLine& bottomLine;
  };
  // The forms are used only once the program runs.
  Recovery(const Kit& kit, const Forms& forms)
      : kit_(kit), forms_(forms), file_(kit.platform.disk, kit.platform.configFolder) {}

  void Begin();
  // After each event. What is being typed into the field in focus is kept when it is left.
  void Follow();
  // All of it, brought to the device.
  void Keep();
  // The user ended the program: nothing is kept.
  void End();

 private:
  QList<WaitingEntries> Waiting(bool withFocused) const;
  WaitingEntries Panel(bool withFocused) const;
  WaitingEntries Lines() const;
  void AddFields(WaitingEntries& entries, const Form& form, bool withFocused) const;
  bool Write(const QList<WaitingEntries>& now);
  bool IsDue(const WaitingEntries& left) const;
  void OfferDue();
  void PutBack(const WaitingEntries& left);

  const Kit kit_;
  const Forms forms_;
  RecoveryFile file_;
  QList<WaitingEntries> left_;     // by runs that crashed, and not yet offered
  QList<WaitingEntries> watched_;  // as it was when it was last written, the field in focus apart
  QList<WaitingEntries> written_;
  bool running_ = false;
  bool busy_ = false;
};

}  // namespace tamo
