#pragma once

#include <functional>
#include <vector>

#include "common/form.h"
#include "common/kit.h"
#include "plans/ostform.h"
#include "records/finishkey.h"
#include "schedule/legend.h"
#include "schedule/plannedrooms.h"
#include "schedule/readaside.h"
#include "schedule/roommaking.h"
#include "schedule/scheduleedits.h"
#include "schedule/scheduletable.h"

namespace tamo {

class SheetPictures;

// The boxes of the sheet in front.
struct SheetBoxes {
  PageBox framed;   // what is framed on the plan of the selected row
  PageBox offered;  // the schedule that was found on the sheet and not yet read
  PageBox taken;    // the drawn box that was read last
};

// The room finish schedule as it was read off the plan: its rows, what is not sure, the finish
// codes with the systems that they mean, and the rooms that are made of it.
//
// It gives the plan's menu Schedule its handlers; plan and kit outlive it.
class ScheduleForm : public Form {
 public:
  ScheduleForm(const Kit& kit, OSTForm& ost);

  void Read();     // begins anew with the box, or with the schedule that stands on the sheet
  void AddPart();  // adds what the box holds behind the rows

  // Called while a sheet is read (`all` is 0) or rooms are made, `done` of `all`; false stops it.
  // Events may come in meanwhile. Afterwards onDone, with whether it came to its end.
  std::function<bool(int done, int all)> onProgress;
  std::function<void(bool whole)> onDone;
  // Reads scanned sheets, when somebody wants that; null: they are refused.
  std::shared_ptr<const SheetPictures> pictures;
  // A new system stands in the library: lists of systems that were read before take it.
  std::function<void(const QString& name)> onSystemMade;

  MenuEntry RowMenu{*this, "RowMenu", "&Rows"};
  MenuEntry TakePasted{*this, "TakePasted", "Take &Pasted Rows", &RowMenu};
  MenuEntry LeaveOut{*this, "LeaveOut", "&Leave Row Out", &RowMenu};
  MenuEntry NewSystem{*this, "NewSystem", "&New System"};
  MenuEntry Compare{*this, "Compare", "&Compare", nullptr};
  MenuEntry MakeRooms{*this, "MakeRooms", "&Make Rooms"};
  MenuEntry TakeBack{*this, "TakeBack", "&Take Rooms Back"};
  MenuEntry Xit{*this, "Xit", "E&xit"};

  Label Summary{*this, "Summary"};
  OrderedList Rows{*this, "Rows"};    // ten cells, separated by tabs
  OrderedList Cells{*this, "Cells"};  // those of the selected row, one a line
  Label CorrectLabel{*this, "CorrectLabel", "Cell:"};
  TextField Correct{*this, "Correct"};
  Label Why{*this, "Why"};                      // of a cell that is not sure
  Label UnpricedNames{*this, "UnpricedNames"};  // the systems of the codes that have no price yet
  Label AreasLabel{*this, "AreasLabel", "Finish areas:"};
  TextField FloorArea{*this, "FloorArea", 10};  // of the lines that are made
  TextField BaseArea{*this, "BaseArea", 10};
  TextField WallsArea{*this, "WallsArea", 6};  // a blank and the sides may follow
  TextField CeilingArea{*this, "CeilingArea", 10};
  OrderedList Columns{*this, "Columns"};  // of the last part: the head, a tab, its meaning
  Label MeaningLabel{*this, "MeaningLabel", "Meaning:"};
  TextField Meaning{*this, "Meaning"};
  Label MeaningPrompt{*this, "MeaningPrompt"};
  Label PastedLabel{*this, "PastedLabel", "From a spreadsheet:"};
  TextField Pasted{*this, "Pasted"};  // rows that were copied from a spreadsheet
  Label FileLabel{*this, "FileLabel", "From a file (.csv):"};
  TextField File{*this, "File"};
  OrderedList Unsure{*this, "Unsure"};  // row and column, from 0
  OrderedList Key{*this, "Key"};        // the codes
  Label CodeLabel{*this, "CodeLabel", "System:"};
  TextField System{*this, "System", 20};
  Label LegendText{*this, "LegendText"};  // what the sheet says of the selected code
  Label SystemPrompt{*this, "SystemPrompt", "Leave blank and press Enter to leave the code out"};

 private:
  static constexpr int kNoPage = 0;  // of a part that stands on no sheet

  void BindLists();
  void BindMenus();
  void BindSources();
  void BindAreas();
  FinishAreas Areas() const;
  void LoadAreas();
  void KeepAreas();
  void TakeSystem(const QString& system);
  void MakeSystem();
  void ShowUnpriced(const RoomPlan& plan);
  void ReadText(const QString& text);
  void ReadFile();
  void ShowColumns();
  void ShowMeaning();
  void ChooseMeaning();
  void MakeRows();
  bool TakeFromPlan();
  void LoadKey();
  void ShowAll();
  void ShowUnsure();
  void ShowCells();
  void ShowCell();
  void FrameCell(const FinishRow& row, int cell);
  void ShowSystem();
  void ShowSummary();
  void CorrectCell();
  void ChooseSystem();
  void LeaveRowOut();
  void WriteRooms();
  void KeepSchedule(const RoomPlan& plan);
  void CompareWithKept();
  void TakeRoomsBack();
  bool MayWrite();
  SheetToRead SheetInFront();
  void ClickedOnPlan();
  void FrameFound();
  bool EnterBox();
  void FrameOnPlan(const PageBox& box, int page);

  const Kit kit_;
  OSTForm& ost_;
  std::vector<ScheduleTable> parts_;
  std::vector<int> pages_;  // on which page each part stands, or kNoPage
  SheetBoxes boxes_;
  std::vector<FinishRow> rows_;
  ScheduleEdits edits_;
  FinishKey key_;
  Legend legend_;  // of the sheets that were read
  MadeRooms made_;
  bool areasLoaded_ = false;
  bool busy_ = false;     // a sheet is being read, or rooms are being made
  bool clicked_ = false;  // the selection follows a click on the drawing: the frame stays away
};

}  // namespace tamo
