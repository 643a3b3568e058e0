#pragma once

#include "common/kit.h"
#include "workspace/projectlifecycle.h"

namespace tamo {

// Copying a project into a new one, and deleting a project: the menu entries.
class ProjectCopies {
 public:
  ProjectCopies(const Kit& kit, const ProjectLifeCycle::Parts& parts,
                const ProjectNeighbours& neighbours, ProjectLifeCycle& projects)
      : kit_(kit), parts_(parts), near_(neighbours), projects_(projects) {}

  void CopyProject();
  void PasteProject();
  void DeleteProject();

 private:
  const Kit kit_;
  const ProjectLifeCycle::Parts parts_;
  const ProjectNeighbours near_;
  ProjectLifeCycle& projects_;
};

}  // namespace tamo
