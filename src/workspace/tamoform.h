#pragma once

#include <memory>
#include <vector>

#include "common/form.h"
#include "common/kit.h"
#include "records/projectrecord.h"
#include "workspace/modeshell.h"
#include "workspace/plandesk.h"
#include "workspace/settingsform.h"
#include "workspace/workdesk.h"

namespace tamo {

// The main form: the project panel, the project list, and in mode 1 the menus. It owns the open
// project's id, name and lock.
class TamoForm : public Form {
 public:
  TamoForm(const Kit& kit, SettingsForm& settings, ModeShell& shell, PlanDesk& plan,
           WorkDesk& work);

  // Start and stop.
  void Init();

  // The project list and the numbers.
  void LoadProjectNumber();
  void SaveProjectNumber();
  void LoadJobsList();
  void SaveJobsList();
  void NeedJobsList();
  void RequireReadableList() const;
  void SeedProjectNumber();

  // The project's record and its lock.
  void SaveJobNFO();
  void LoadJobNFO() { ReadRecord(QString()); }
  // For a plan that was just picked: the record's page, zoom and scale come back only when it names
  // the same plan; otherwise the picked one stays.
  void LoadJobNFOForPlan(const QString& picked) { ReadRecord(picked); }
  void SaveLocked();
  void LoadLocked();

  // The life cycle, as the menus of both shells call it.
  void NewProject();
  void OpenProject();
  void ClearProject();
  void LockProject();
  void ProjectInformation();
  void CopyProject();
  void PasteProject();
  void DeleteProject();
  // True when a project is open; otherwise brings up the project list, or puts it away.
  bool NeedProject();
  // True when the project may be changed; otherwise says that it is locked.
  bool NeedUnlocked();
  bool CanBeAProject(const QString& id);
  void ShowPanel();
  void HidePanel();

  MenuEntry Project, OpenProjectEntry, ClearProjectEntry, NewProjectEntry, ProjectInformationEntry,
      LockProjectEntry, CopyProjectEntry, PasteProjectEntry, DeleteProjectEntry;
  MenuEntry Pricing2, UnitsPricing, Markups;
  MenuEntry Estimate, RoomFinishSchedule, EnterRoomFinishSchedule, TakeOffRoomFinishSchedule,
      NonFinishScheduleItems, BottomLineItems, PriceAdjustment;
  MenuEntry Reports1, ProjectNFO, Quantities, Recap, RecapSheet, DetailedRecap, BreakDown,
      BillOfLabor, BillOfMaterial, ProjectManager, oCopy, fCopy, Proposal;
  MenuEntry Drawings, LoadDRawings, ViewDrawings, OST1, Settings1, Docs1, Exit;

  Frame JobNFOFrame;
  TextField JobName, BidDate, Addenda, Phase, BidItems, Inclusions, Exclusions, Architect, Notes;
  Button Command1;
  OrderedList JobsList;

 private:
  void SetUpChain();
  void ToggleJobsList();
  void OpenSelected();
  void ClosePanel();
  void ClearRecord();
  void LeavePlan();
  void ReadRecord(const QString& picked);
  void TakePlanOfRecord(const JobNFO& record);
  JobNFO RecordOfFields() const;
  void SweepFolders();

  const Kit kit_;
  SettingsForm& settings_;
  ModeShell& shell_;
  PlanDesk& plan_;
  WorkDesk& work_;
  int listError_ = 0;     // of that reading
  QString listedFolder_;  // the data folder that JobsList was read from
  QString numberLine_;    // the last line read from Project.num
};

}  // namespace tamo
