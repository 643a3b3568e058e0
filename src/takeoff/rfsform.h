#pragma once

#include "takeoff/autoroomswitch.h"
#include "takeoff/rfsscreen.h"
#include "takeoff/roomcommands.h"
#include "takeoff/roomrecord.h"

namespace tamo {

// The room finish schedule: rooms, their systems and heights are entered (Flag "Enter"), and then
// taken off line by line, room by room (Flag "Estimate").
//
// The room on the screen is the record (RoomRecord). Setting RoomList's index runs the line
// selection at once, from code too; much of the chain leans on it.
class RFSForm : public RFSScreen {
 public:
  // All of it outlives the form.
  RFSForm(const Kit& kit, PlanTools& plan, MissingSystemPricing& pricing,
          TakeoffReportRefresh& reports, TakeoffExits& exits);

  // The shell's menu entries, after their guards. `owner` is the window above which the form
  // stands.
  void EnterRoomFinishSchedule(Form* owner);
  void TakeOffRoomFinishSchedule(Form* owner);

  void Init() override;
  void LoadDescriptions() override;
  void LoadSystem();   // the system named in Description
  void EstimateRFS();  // on to the next line of the walk
  RoomRecord& Record() { return record_; }

 private:
  // rfsform.cpp
  void LeaveForm();

  // rfsentry.cpp: Room, then Description and Area in a loop, then How
  void BindEntry();
  void TakeRoom();
  void RoomGotFocus();
  void TakeDescription();
  void LeaveDescription();
  void TakeSystem();
  void TakeFinishArea();
  void StoreLine();
  void RewriteLine(int at);
  void AddLine(int at);
  void FinishRoom();
  void NextRoom();

  // rfslists.cpp: what is picked from a list
  void BindLists();
  void RoomSelected();
  void DescriptionSelected();
  void FinishAreaSelected();

  // rfstakeoff.cpp: the walk through all lines, and the arithmetic of a line
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

  RoomRecord record_{*this, kit_, reports_};
  RoomCommands commands_{*this, record_, kit_};
  AutoRoomSwitch autoRoom_{AutoRoom};
};

}  // namespace tamo
