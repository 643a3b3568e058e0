#pragma once

#include "workspace/conflictcopies.h"
#include "workspace/projectcopies.h"
#include "workspace/projectlifecycle.h"
#include "workspace/settingsform.h"
#include "workspace/tamomenu.h"

namespace tamo {

// The main form: the project panel, the project list, and in mode 1 the menus. It owns the open
// project's id, name and lock. What it does lies in its parts; the menus of both shells reach them
// here.
class TamoForm : public Form {
 public:
  TamoForm(const Kit& kit, SettingsForm& settings, const ProjectNeighbours& neighbours);

  // The start-up: settings, prices, data folder, and the shell of the mode in force.
  void Init();

  // True when a project is open; otherwise brings up the project list, or puts it away.
  bool NeedProject();
  // The menu entry: shows the panel with the focus on the bid date, or hides it.
  void ProjectInformation();

  TamoMenu menu{*this};
  ProjectPanel panel{*this};

 private:
  const Kit kit_;
  SettingsForm& settings_;
  const ProjectNeighbours near_;

 public:
  ProjectIds ids{kit_, settings_.EstimatorNumber};
  ProjectPicker picker{kit_, panel, ids};
  ProjectHold hold{kit_};
  ConflictCopies conflicts{kit_};
  ProjectLock lock{kit_, hold};
  PanelRecord record{kit_, panel, lock, near_};

 private:
  const ProjectLifeCycle::Parts parts_{panel, settings_.EstimatorNumber, ids, picker, hold, lock,
                                       record};

 public:
  ProjectLifeCycle projects{kit_, parts_, near_};
  ProjectCopies copies{kit_, parts_, near_, projects};
};

}  // namespace tamo
