#pragma once

#include "common/form.h"

namespace tamo {

// The menu bar of the main form, in its order.
struct TamoMenu {
  explicit TamoMenu(Form& owner) : form(owner) {}

  Form& form;

  MenuEntry Project{form, "Project", "&Project"};
  MenuEntry OpenProject{form, "OpenProject", "&Open Project", &Project};
  MenuEntry ClearProject{form, "ClearProject", "&Clear Project", &Project};
  MenuEntry NewProject{form, "NewProject", "C&reate Project", &Project};
  MenuEntry ProjectInformation{form, "ProjectInformation", "&Project Information", &Project};
  MenuEntry LockProject{form, "LockProject", "&Lock/Unlock Project", &Project};
  MenuEntry CopyProject{form, "CopyProject", "&Copy Project", &Project};
  MenuEntry PasteProject{form, "PasteProject", "P&aste Project", &Project};
  MenuEntry DeleteProject{form, "DeleteProject", "&Delete Project", &Project};
  MenuEntry KeepVersion{form, "KeepVersion", "&Keep This Version", &Project};
  MenuEntry Versions{form, "Versions", "&Versions", &Project};
  MenuEntry DeletedProjects{form, "DeletedProjects", "&Bring Back a Deleted Project", &Project};
  MenuEntry Pricing2{form, "Pricing2", "Pricing"};
  MenuEntry UnitsPricing{form, "UnitsPricing", "&Unit Pricing", &Pricing2};
  MenuEntry Markups{form, "Markups", "&Markups", &Pricing2};
  MenuEntry Estimate{form, "Estimate", "&Estimate"};
  MenuEntry RoomFinishSchedule{form, "RoomFinishSchedule", "&Room Finish Schedule", &Estimate};
  MenuEntry EnterRoomFinishSchedule{form, "EnterRoomFinishSchedule", "&Enter Room Finish Schedule",
                                    &RoomFinishSchedule};
  MenuEntry TakeOffRoomFinishSchedule{form, "TakeOffRoomFinishSchedule",
                                      "&TakeOff Room Finish Schedule", &RoomFinishSchedule};
  MenuEntry NonFinishScheduleItems{form, "NonFinishScheduleItems", "&Non Finish Schedule Items",
                                   &Estimate};
  MenuEntry BottomLineItems{form, "BottomLineItems", "&Bottom Line Items", &Estimate};
  MenuEntry PriceAdjustment{form, "PriceAdjustment", "&Price Adjustment", &Estimate};
  MenuEntry Reports1{form, "Reports1", "Repor&ts"};
  MenuEntry ProjectNFO{form, "ProjectNFO", "Pr&oject Information", &Reports1};
  MenuEntry Quantities{form, "Quantities", "&Quantities", &Reports1};
  MenuEntry Recap{form, "Recap", "&Recap", &Reports1};
  MenuEntry RecapSheet{form, "RecapSheet", "&Recap Overview", &Recap};
  MenuEntry DetailedRecap{form, "DetailedRecap", "&Detailed Recap", &Recap};
  MenuEntry BreakDown{form, "BreakDown", "&BreakDown", &Reports1};
  MenuEntry BillOfLabor{form, "BillOfLabor", "Bill of &Labor", &Reports1};
  MenuEntry BillOfMaterial{form, "BillOfMaterial", "Bill of &Material", &Reports1};
  MenuEntry ProjectManager{form, "ProjectManager", "&Project Manager", &Reports1};
  MenuEntry oCopy{form, "oCopy", "&Office Copy", &ProjectManager};
  MenuEntry fCopy{form, "fCopy", "&Field Copy", &ProjectManager};
  MenuEntry Proposal{form, "Proposal", "Propo&sal", &Reports1};
  MenuEntry ScheduleCheck{form, "ScheduleCheck", "Schedule &Check", &Reports1};
  MenuEntry WhatChanged{form, "WhatChanged", "&What Changed Since the Bid Was Sent (F8)",
                        &Reports1};
  MenuEntry Drawings{form, "Drawings", "&Drawings"};
  MenuEntry LoadDRawings{form, "LoadDRawings", "&Load Drawings", &Drawings};
  MenuEntry ViewDrawings{form, "ViewDrawings", "&View Drawings", &Drawings};
  MenuEntry OST1{form, "OST1", "&DSW"};
  MenuEntry Settings1{form, "Settings1", "&Settings"};
  MenuEntry Docs1{form, "Docs1", "D&ocumentation"};
  MenuEntry Exit{form, "Exit", "E&xit"};
};

}  // namespace tamo
