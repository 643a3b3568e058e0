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
          TakeoffReportRefresh& reports, TakeoffExits& exits, TakingBack& steps);

  // The shell's menu entries, after their guards. `owner` is the window above which the form
  // stands.
  void EnterRoomFinishSchedule(Form* owner);
  void TakeOffRoomFinishSchedule(Form* owner);

  void Init() override;
  void LoadDescriptions() override;
  QString TargetOf(const TextField& field) const override;
  void LoadSystem();   // the system named in Description
  void EstimateRFS();  // on to the next line of the walk
  RoomRecord& Record() { return record_; }
  SheetState State() const override;
  void ShowState(const SheetState& state) override;
  void FollowFiles(const QStringList& paths) override;

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

  // rfsstate.cpp: what taking back shows, and what it calls an entry
  QString TheLine() const;           // the system and the finish area in the fields
  void BeginLine();                  // a line is entered
  void BeginQuantity(double total);  // a length or a count is entered; it makes the line `total`
  void SelectLine(int at);           // without beginning it

  RoomRecord record_{*this, kit_, reports_, steps_};
  RoomCommands commands_{*this, record_, kit_, steps_};
  AutoRoomSwitch autoRoom_{AutoRoom};
};

}  // namespace tamo
