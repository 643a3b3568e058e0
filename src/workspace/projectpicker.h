#pragma once

#include "common/kit.h"
#include "workspace/projectids.h"
#include "workspace/projectpanel.h"

namespace tamo {

// The project list on the screen, which is also the copy that is written back whole.
class ProjectPicker {
 public:
  ProjectPicker(const Kit& kit, ProjectPanel& panel, ProjectIds& ids)
      : kit_(kit), panel_(panel), ids_(ids) {}

  void LoadJobsList();
  // Writes the list back. A project that is being created gets its id, its folders and its line
  // first; nothing happens without an id and a name.
  void SaveJobsList();
  // Takes the open project's line out of the list and writes the list.
  void RemoveProject();
  // Shows the panel with the list, or puts both away; an empty list does not come up.
  void Toggle();
  // The id of the selected line, "" when no project can have it: then the estimator is told.
  QString SelectedId();

 private:
  void AddProject();
  void NeedJobsList();

  const Kit kit_;
  ProjectPanel& panel_;
  ProjectIds& ids_;
  QStringList base_;      // what the list held when it was last read or written
  QString listedFolder_;  // the data folder that JobsList was read from
};

}  // namespace tamo
