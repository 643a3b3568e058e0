#pragma once

#include "workspace/frontwindows.h"
#include "workspace/planofproject.h"
#include "workspace/projectfollowers.h"

namespace tamo {

// What the project panel reaches beyond itself when a project comes, opens or goes. All of it
// outlives the main form.
struct ProjectNeighbours {
  FrontWindows& windows;
  PlanOfProject& plan;
  ProjectFollowers& followers;
};

}  // namespace tamo
