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

// The free takeoff: the items of a job that belong to no room. Entry and takeoff are one step: an
// area, a system, and at once its lengths or counts. A twin of the room schedule that rounds every
// entry, stores no height, and spells system names exactly.
class EstimateForm : public Form {
 public:
  EstimateForm(const Kit& kit, PlanTools& plan, PricingDesk& pricing, TakeoffReportRefresh& reports,
               TakeoffShell& shell);

  Label AreaLabel;
  TextField Area;  // no limit: a file name
  Label AreaPrompt;
  Label DescriptionLabel;
  TextField eDescription;  // the system, at most 20 characters
  Label DescriptionPrompt;
  Label UnitsLabel;
  TextField Units;  // read-only to the user
  Label HOWLabel;
  TextField Hite;  // height or width, at most 11; never stored
  Label HitePrompt;
  Label LengthLabel;
  TextField eLength;
  Label LengthPrompt;
  OrderedList AreaList;  // the lines of the area

  OrderedList AreasList;         // drops from Area
  OrderedList DescriptionsList;  // drops from eDescription, most recent first
  OrderedList Lengths;           // what was entered for the line in work, for the eye only
  OrderedList CopyAreaList;      // what Copy Area took; never displayed
  OrderedList System;            // the lines of the last fetched system; never displayed

  Label ScaleLabel;
  Label ScaleText;   // the plan's scale in force
  Label StatusText;  // where the estimator stands: "Area 2 of 3, line 1 of 4"

  MenuEntry AutoRoom;
  MenuEntry CopyArea;
  MenuEntry PasteArea;
  MenuEntry OST1;
  MenuEntry Exit;
  MenuEntry EditAreas;
  MenuEntry AreasDelete;
  MenuEntry AreasCancel;
  MenuEntry EditArea;
  MenuEntry SystemDelete;
  MenuEntry SystemInsert;
  MenuEntry SystemCancel;

  // The shell's menu entry, after its guards.
  void NonFinishScheduleItems(Form* owner);

  void Init();
  void LoadDescriptions();
  void SaveDescriptions();
  void LoadAreas();
  void SaveAreas();
  void LoadArea();
  void SaveArea();
  void LoadSystem();  // the system named in eDescription

 private:
  // estimateform.cpp
  void BindMenus();
  void BindPopups();
  void Activated();
  void LeaveForm();
  void FollowProject();
  void ForgetLines();
  void PrepareSave();
  void UpdateStatus();

  // estimatechain.cpp
  void BindChain();
  void TakeArea();
  void EnterArea();
  bool FollowAreaName();
  void AreaGotFocus();
  void TakeDescription();
  void LeaveDescription();
  void NextArea();
  void UnknownSystem();
  void TakeSystem();
  void AskForLength();
  void TakeHeight();
  void HiteGotFocus();
  void TakeLength();
  void LengthGotFocus();
  void AddEntry();
  void StoreQuantity(double total);
  void EndLineEntry();

  // estimatelists.cpp
  void BindLists();
  void AreaSelected();
  void LineSelected();
  void DescriptionSelected();
  void SwitchAutoRoom();
  void DeleteArea();
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
  int areasTop_ = 0;
  int areaIndex_ = -1;  // AreasList's selected index, as last kept
  QString workUnit_;    // the loaded system's unit, trimmed
  QString copyHite_;    // the height that Copy Area took
  // The number of the last failure. LoadDescriptions and LoadSystem set it back; LoadArea does not,
  // and reads nothing while it is not 0: after a new area, the next area that is opened shows no
  // lines until a system is loaded (held by a test).
  int error_ = 0;
  int areasError_ = 0;  // why the list of areas could not be read
  LinesInWork lines_{kit_.shared, QStringLiteral("area")};
  bool unread_ = false;     // the file of the area was not read: AreaList lacks its lines
  bool following_ = false;  // a name is followed: the focus goes where the estimator sends it
  bool unknown_ = false;    // a system that is not there yet led to Pricing
};

}  // namespace tamo
