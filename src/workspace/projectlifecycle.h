#pragma once

#include "common/kit.h"
#include "workspace/panelrecord.h"
#include "workspace/projectids.h"
#include "workspace/projectlock.h"
#include "workspace/projectneighbours.h"
#include "workspace/projectpicker.h"

namespace tamo {

// How a project comes into being, is opened and is closed again.
class ProjectLifeCycle {
 public:
  // The parts of the main form; they outlive this.
  struct Parts {
    ProjectPanel& panel;
    const TextField& estimator;  // the estimator's number in the settings
    ProjectIds& ids;
    ProjectPicker& picker;
    ProjectHold& hold;
    ProjectLock& lock;
    PanelRecord& record;
  };
  ProjectLifeCycle(const Kit& kit, const Parts& parts, const ProjectNeighbours& neighbours)
      : kit_(kit), parts_(parts), near_(neighbours) {}

  void NewProject();
  void OpenProject();
  // The project of the line that is selected in the list.
  void OpenSelected();
  void ClearProject();
  // What is behind its file is read again; nothing that was typed goes.
  void ReadBehind();
  // The open project belongs to another program, or to this one again, or none is open: the fields
  // and the titles show it.
  void ShowWhoHasIt();
  // It was read until now, and has changed meanwhile.
  void ReadAgain();
  // The button of the panel: the project is listed, if it is new, and its record written.
  void ExitProjectInformation();

 private:
  void ReadOpenProject();
  void ShowWhetherNumbered(const QString& newId);  // "": no project is being made
  bool TakeNewId();
  void TogglePanelForName();

  const Kit kit_;
  const Parts parts_;
  const ProjectNeighbours near_;
};

}  // namespace tamo
