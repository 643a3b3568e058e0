#pragma once

#include "takeoff/autoroomswitch.h"
#include "takeoff/linesinwork.h"
#include "takeoff/measuredvalue.h"
#include "takeoff/takeoffform.h"

namespace tamo {

// The free takeoff: the items of a job that belong to no room. Entry and takeoff are one step: an
// area, a system, and at once its lengths or counts. A twin of the room schedule that rounds every
// entry, stores no height, and spells system names exactly.
class EstimateForm : public TakeoffForm {
 public:
  // All of it outlives the form.
  EstimateForm(const Kit& kit, PlanTools& plan, MissingSystemPricing& pricing,
               TakeoffReportRefresh& reports, TakeoffExits& exits, TakingBack& steps);

  TextField Area{*this, "Area"};  // no limit: a file name
  Label AreaPrompt{*this, "AreaPrompt", "Leave blank and press Enter to finish"};
  TextField eDescription{*this, "eDescription", 20};  // the system
  TextField Hite{*this, "Hite", 11};                  // height or width; never stored
  Label HitePrompt{*this, "HitePrompt", "Leave blank and press Enter for new Description"};
  TextField eLength{*this, "eLength"};
  OrderedList AreaList{*this, "AreaList"};  // the lines of the area

  OrderedList AreasList{*this, "AreasList"};        // drops from Area
  OrderedList CopyAreaList{*this, "CopyAreaList"};  // what Copy Area took; never displayed

  MeasuredValue measured{*this};

  MenuEntry AutoRoom{*this, "AutoRoom", " &AutoRoom is Off"};
  MenuEntry CopyArea{*this, "CopyArea", " &CopyArea"};
  MenuEntry PasteArea{*this, "PasteArea", " &PasteArea"};
  MenuEntry OST1{*this, "OST1", "&DSW"};
  MenuEntry Exit{*this, "Exit", "E&xit"};
  MenuEntry ShowMarks{*this, "ShowMarks", "&Marks (F7)"};
  MenuEntry EditAreas{*this, "EditAreas", {}, nullptr, true};
  MenuEntry AreasDelete{*this, "AreasDelete", "Delete Area", &EditAreas};
  MenuEntry AreasCancel{*this, "AreasCancel", "Cancel", &EditAreas};
  MenuEntry EditArea{*this, "EditArea", {}, nullptr, true};
  MenuEntry SystemDelete{*this, "SystemDelete", "Delete System", &EditArea};
  MenuEntry SystemInsert{*this, "SystemInsert", "Insert System", &EditArea};
  MenuEntry SystemCancel{*this, "SystemCancel", "Cancel", &EditArea};

  // The shell's menu entry, after its guards.
  void NonFinishScheduleItems(Form* owner);

  void Init() override;
  void LoadDescriptions() override;
  QString TargetOf(const TextField& field) const override;
  void LoadAreas();
  void SaveAreas();
  void LoadArea();
  void SaveArea();
  void LoadSystem();  // the system named in eDescription
  // What is behind its file is read again; the estimator stays where he is.
  void ReadAgain();
  SheetState State() const override;
  void ShowState(const SheetState& state) override;
  void FollowFiles(const QStringList& paths) override;

 private:
  // estimateform.cpp
  void BindPopups();
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
  // No other name stands in Area than that of the lines below (one that was refused, say).
  bool NameStands() const { return Area.Empty() || lines_.AreOf(Area.Text()); }
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
  void DeleteArea();
  bool LineIsSelected();
  void DeleteLine();
  void InsertLine();
  void CopyLines();
  void PasteLines();

  // estimatestate.cpp: what taking back shows, and what it calls an entry
  void BeginQuantity(double total);  // a length or a count is entered; it makes the line `total`
  void LeaveArea();

  AutoRoomSwitch autoRoom_{AutoRoom};
  int areasTop_ = 0;
  int areaIndex_ = -1;  // AreasList's selected index, as last kept
  QString workUnit_;    // the loaded system's unit, trimmed
  QString copyHite_;    // the height that Copy Area took
  // The number of the last failure. LoadDescriptions and LoadSystem set it back; LoadArea does not,
  // and reads nothing while it is not 0: after a new area, the next area that is opened shows no
  // lines until a system is loaded (held by a test).
  int error_ = 0;
  LinesInWork lines_{kit_.shared, "area"};
  struct {
    bool unread = false;     // the file of the area was not read: AreaList lacks its lines
    bool following = false;  // a name is followed: the focus goes where the estimator sends it
    bool quiet = false;      // a line is selected without being begun
    bool unknown = false;    // a system that is not there yet led to Pricing
  } now_;
};

}  // namespace tamo
