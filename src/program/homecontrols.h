#pragma once

#include <array>

#include "common/form.h"

namespace tamo {

// What stands in the free space of the main form. Each button shows a figure and leads to where it
// is made; a caption is "name: figure" or an action alone. Tab reaches the buttons; the focus never
// comes to them by itself.
struct HomeControls {
  explicit HomeControls(Form& owner);

  Form& form;
  Frame HomePage{form, "HomePage"};

  // With no project open: the ways to begin.
  Frame HomeStart{form, "HomeStart"};
  Button HomeSample{form, "HomeSample", "Open Sample Bid"};
  Button HomeCreate{form, "HomeCreate", "Create Project"};
  Button HomeOpen{form, "HomeOpen", "Open Project"};
  Button HomeGuide{form, "HomeGuide", "Getting Started"};
  Label HomeNoProjects{form, "HomeNoProjects", "None yet."};
  Button HomeProject1{form, "HomeProject1", "Last project"};
  Button HomeProject2{form, "HomeProject2", "Last project"};
  Button HomeProject3{form, "HomeProject3", "Last project"};
  Button HomeProject4{form, "HomeProject4", "Last project"};
  Button HomeProject5{form, "HomeProject5", "Last project"};
  Label HomeNoPlans{form, "HomeNoPlans", "None yet."};
  Button HomePlan1{form, "HomePlan1", "Last plan"};
  Button HomePlan2{form, "HomePlan2", "Last plan"};
  Button HomePlan3{form, "HomePlan3", "Last plan"};
  Button HomePlan4{form, "HomePlan4", "Last plan"};
  Button HomePlan5{form, "HomePlan5", "Last plan"};

  // With one open: its state.
  Frame HomeState{form, "HomeState"};
  Label HomeName{form, "HomeName"};
  Label HomeNumber{form, "HomeNumber"};
  Button HomeTotal{form, "HomeTotal", "Recap total: ..."};
  Button HomeHours{form, "HomeHours", "Labor hours: ..."};
  Button HomeBidDate{form, "HomeBidDate", "Bid date: ..."};
  Button HomeRooms{form, "HomeRooms", "Rooms: ..."};
  Button HomeAreas{form, "HomeAreas", "Areas: ..."};
  Button HomeEmptyLines{form, "HomeEmptyLines", "Lines without a quantity: ..."};
  Button HomeUnpriced{form, "HomeUnpriced", "Systems without a price: ..."};
  Button HomeItems{form, "HomeItems", "Bottom line items: ..."};
  Button HomeAdjustment{form, "HomeAdjustment", "Price adjustment: ..."};
  Button HomeThumbnail{form, "HomeThumbnail", "Plan: ..."};
  Button HomeLast{form, "HomeLast", "Last entry: ..."};
  Label HomeUncounted{form, "HomeUncounted"};

  std::array<Button*, 5> Projects() {
    return {&HomeProject1, &HomeProject2, &HomeProject3, &HomeProject4, &HomeProject5};
  }
  std::array<Button*, 5> Plans() {
    return {&HomePlan1, &HomePlan2, &HomePlan3, &HomePlan4, &HomePlan5};
  }
};

}  // namespace tamo
