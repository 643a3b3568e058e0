#pragma once

#include <vector>

#include "common/form.h"
#include "common/kit.h"
#include "plans/ostform.h"
#include "records/finishkey.h"
#include "schedule/plannedrooms.h"
#include "schedule/roommaking.h"
#include "schedule/scheduletable.h"

namespace tamo {

// The room finish schedule as it was read off the plan: its rows, what is not sure, the finish
// codes with the systems that they mean, and the rooms that are made of it.
//
// It gives the plan's menu Schedule its handlers; plan and kit outlive it.
class ScheduleForm : public Form {
 public:
  ScheduleForm(const Kit& kit, OSTForm& ost);

  void Read();     // begins anew with the box, or with the schedule that stands on the sheet
  void AddPart();  // adds what the box holds behind the rows

  MenuEntry RowMenu{*this, "RowMenu", "&Rows"};
  MenuEntry LeaveOut{*this, "LeaveOut", "&Leave Row Out", &RowMenu};
  MenuEntry MakeRooms{*this, "MakeRooms", "&Make Rooms"};
  MenuEntry TakeBack{*this, "TakeBack", "&Take Rooms Back"};
  MenuEntry Xit{*this, "Xit", "E&xit"};

  Label Summary{*this, "Summary"};
  OrderedList Rows{*this, "Rows"};    // ten cells, separated by tabs
  OrderedList Cells{*this, "Cells"};  // those of the selected row, one a line
  Label CorrectLabel{*this, "CorrectLabel", "Cell:"};
  TextField Correct{*this, "Correct"};
  Label Why{*this, "Why"};              // of a cell that is not sure
  OrderedList Unsure{*this, "Unsure"};  // row and column, from 0
  OrderedList Key{*this, "Key"};        // the codes
  Label CodeLabel{*this, "CodeLabel", "System:"};
  TextField System{*this, "System", 20};
  Label SystemPrompt{*this, "SystemPrompt", "Leave blank and press Enter to leave the code out"};

 private:
  void BindLists();
  void BindMenus();
  bool TakeFromPlan();
  void LoadKey();
  void ShowAll();
  void ShowUnsure();
  void ShowCells();
  void ShowCell();
  void ShowSystem();
  void ShowSummary();
  void CorrectCell();
  void ChooseSystem();
  void LeaveRowOut();
  void WriteRooms();
  void TakeRoomsBack();
  bool MayWrite();
  void FrameOnPlan(const PageBox& box, int page);

  const Kit kit_;
  OSTForm& ost_;
  std::vector<ScheduleTable> parts_;
  std::vector<int> pages_;  // on which page each part stands
  PageBox framed_;          // what is framed on the plan of the selected row
  std::vector<FinishRow> rows_;
  FinishKey key_;
  MadeRooms made_;
};

}  // namespace tamo
