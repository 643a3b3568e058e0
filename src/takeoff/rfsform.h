#pragma once

#include "common/control.h"
#include "common/form.h"
#include "common/kit.h"
#include "takeoff/linesinwork.h"
#include "takeoff/plantools.h"
#include "takeoff/pricingdesk.h"
#include "takeoff/takeoffreportrefresh.h"
#include "takeoff/takeoffshell.h"

namespace tamo {

// The room finish schedule: rooms, their systems and heights are entered (Flag "Enter"), and then
// taken off line by line, room by room (Flag "Estimate").
//
// The room on the screen is the record: RoomList is written whole to the room's file at each Enter
// that changes something. Setting RoomList's index runs the line selection at once, from code too;
// much of the chain leans on it.
class RFSForm : public Form {
 public:
  RFSForm(const Kit& kit, PlanTools& plan, PricingDesk& pricing, TakeoffReportRefresh& reports,
          TakeoffShell& shell);

  Frame RFSFrame;

  Label RoomLabel;
  TextField Room;  // no limit: a file name
  Label RoomPrompt;
  Label DescriptionLabel;
  TextField Description;  // the system, at most 20 characters
  Label DescriptionPrompt;
  Label AreaLabel;
  TextField Area;  // the finish area, at most 10
  Label UnitsLabel;
  TextField Units;  // read-only to the user
  Label HOWLabel;
  TextField How;  // the room's height, or a height or width while taking off, at most 11
  Label HowPrompt;
  Label LengthLabel;
  TextField Length;  // at most 11
  Label LengthPrompt;
  OrderedList RoomList;  // the lines of the room

  OrderedList RoomsList;         // drops from Room
  OrderedList DescriptionsList;  // drops from Description, most recent first
  OrderedList AreaList;          // finish areas, drops from Area, most recent first
  OrderedList Lengths;           // what was entered for the line in work, for the eye only
  OrderedList CopyRoomList;      // what Copy Room took; never displayed
  OrderedList System;            // the lines of the last fetched system; never displayed

  Label ScaleLabel;
  Label ScaleText;   // the plan's scale in force
  Label StatusText;  // where the estimator stands: "Room 3 of 12, line 2 of 5"

  MenuEntry AutoRoom;
  MenuEntry CopyRoom;
  MenuEntry PasteRoom;
  MenuEntry OST1;
  MenuEntry Exit;
  MenuEntry RmsPopup;
  MenuEntry RmsDelete;
  MenuEntry RmsCancel;
  MenuEntry RmList;
  MenuEntry RmListDelete;
  MenuEntry RmListInsert;
  MenuEntry RmListCancel;

  QString Flag;         // "Enter" or "Estimate"
  QString CopyHeight;   // the room's height as last entered or loaded
  QString CopyHeight1;  // the height that Copy Room took

  // The shell's menu entries, after their guards. `owner` is the window above which the form
  // stands.
  void EnterRoomFinishSchedule(Form* owner);
  void TakeOffRoomFinishSchedule(Form* owner);

  void Init();
  void LoadDescriptions();
  void SaveDescriptions();
  void LoadRooms();
  void SaveRooms();
  void LoadRoom();
  void SaveRoom();
  void LoadAreas();
  void SaveAreas();
  void LoadSystem();  // the system named in Description
  void EstimateRFS();

 private:
  // rfsform.cpp
  void BindMenus();
  void BindPopups();
  void Activated();
  void LeaveForm();
  void ShowPlan();
  void FollowProject();
  void ForgetLines();
  void UpdateStatus();
  void UpdatePrompts();

  // rfsentry.cpp
  void BindEntry();
  void TakeRoom();
  void RoomGotFocus();
  void EnterRoom();
  bool FollowRoomName();
  void TakeDescription();
  void LeaveDescription();
  void DescriptionGotFocus();
  void TakeSystem();
  void TakeFinishArea();
  void StoreLine();
  void RewriteLine(int at);
  void AddLine(int at);
  void FinishRoom();
  void NextRoom();
  void SwitchAutoRoom();

  // rfstakeoff.cpp
  void BindTakeoff();
  void TakeHeight();
  void HowGotFocus();
  void TakeLength();
  void LengthGotFocus();
  void LineSelected();
  void AskForLineEntry();
  void AddEntry();
  void StoreQuantity(double total);
  void EndLineEntry();
  void SaveAndWalkOn();
  void FinishSchedule();

  // rfslists.cpp
  void BindLists();
  void RoomSelected();
  void DescriptionSelected();
  void FinishAreaSelected();
  void DeleteRoom();
  void DeleteLine();
  void InsertLine();
  void CopyLines();
  void PasteLines();

  const Kit& kit_;
  PlanTools& plan_;
  PricingDesk& pricing_;
  TakeoffReportRefresh& reports_;
  TakeoffShell& shell_;

  bool autoRoom_ = false;
  bool suppress_ = false;  // the next selection of a line does nothing but clear this
  int roomCursor_ = -1;    // index in RoomsList of the room in work
  int selectedLine_ = -1;  // the last selected line, kept across LoadRoom
  int roomsTop_ = 0;
  double heightNumber_ = 0;
  LinesInWork lines_{kit_.shared, QStringLiteral("room")};
  int roomsError_ = 0;  // why the list of rooms could not be read
  int areasError_ = 0;  // why the list of finish areas could not be read
};

}  // namespace tamo
