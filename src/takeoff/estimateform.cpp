#include "takeoff/estimateform.h"

#include "common/columns.h"
#include "common/failure.h"
#include "records/areafile.h"
#include "records/namelists.h"
#include "records/sheetnames.h"
#include "records/storable.h"
#include "takeoff/takeoffsystem.h"
#include "takeoff/unitcodes.h"

namespace tamo {

EstimateForm::EstimateForm(const Kit& kit, PlanTools& plan, PricingDesk& pricing,
                           TakeoffReportRefresh& reports, TakeoffShell& shell)
    : Form(kit.desk, QStringLiteral("EstimateForm")),
      AreaLabel(*this, QStringLiteral("AreaLabel"), QStringLiteral("Area:")),
      Area(*this, QStringLiteral("Area")),
      AreaPrompt(*this, QStringLiteral("AreaPrompt"),
                 QStringLiteral("Leave blank and press Enter to finish")),
      DescriptionLabel(*this, QStringLiteral("DescriptionLabel"), QStringLiteral("System Name:")),
      eDescription(*this, QStringLiteral("eDescription"), 20),
      DescriptionPrompt(*this, QStringLiteral("DescriptionPrompt"),
                        QStringLiteral("Leave blank and press Enter for new Area")),
      UnitsLabel(*this, QStringLiteral("UnitsLabel"), QStringLiteral("TakeOff Units")),
      Units(*this, QStringLiteral("Units"), 5),
      HOWLabel(*this, QStringLiteral("HOWLabel"), QStringLiteral("Height or Width:")),
      Hite(*this, QStringLiteral("Hite"), 11),
      HitePrompt(*this, QStringLiteral("HitePrompt"),
                 QStringLiteral("Leave blank and press Enter for new Description")),
      LengthLabel(*this, QStringLiteral("LengthLabel"), QStringLiteral("Length:")),
      eLength(*this, QStringLiteral("eLength")),
      LengthPrompt(*this, QStringLiteral("LengthPrompt"),
                   QStringLiteral("Leave blank and press Enter for new Height")),
      AreaList(*this, QStringLiteral("AreaList")),
      AreasList(*this, QStringLiteral("AreasList")),
      DescriptionsList(*this, QStringLiteral("DescriptionsList")),
      Lengths(*this, QStringLiteral("Lengths")),
      CopyAreaList(*this, QStringLiteral("CopyAreaList")),
      System(*this, QStringLiteral("System")),
      ScaleLabel(*this, QStringLiteral("ScaleLabel"), QStringLiteral("Scale ")),
      ScaleText(*this, QStringLiteral("ScaleText")),
      StatusText(*this, QStringLiteral("StatusText")),
      AutoRoom(*this, QStringLiteral("AutoRoom"), QStringLiteral(" &AutoRoom is Off")),
      CopyArea(*this, QStringLiteral("CopyArea"), QStringLiteral(" &CopyArea")),
      PasteArea(*this, QStringLiteral("PasteArea"), QStringLiteral(" &PasteArea")),
      OST1(*this, QStringLiteral("OST1"), QStringLiteral("&DSW")),
      Exit(*this, QStringLiteral("Exit"), QStringLiteral("E&xit")),
      EditAreas(*this, QStringLiteral("EditAreas"), QString(), nullptr, true),
      AreasDelete(*this, QStringLiteral("AreasDelete"), QStringLiteral("Delete Area"), &EditAreas),
      AreasCancel(*this, QStringLiteral("AreasCancel"), QStringLiteral("Cancel"), &EditAreas),
      EditArea(*this, QStringLiteral("EditArea"), QString(), nullptr, true),
      SystemDelete(*this, QStringLiteral("SystemDelete"), QStringLiteral("Delete System"),
                   &EditArea),
      SystemInsert(*this, QStringLiteral("SystemInsert"), QStringLiteral("Insert System"),
                   &EditArea),
      SystemCancel(*this, QStringLiteral("SystemCancel"), QStringLiteral("Cancel"), &EditArea),
      kit_(kit),
      plan_(plan),
      pricing_(pricing),
      reports_(reports),
      shell_(shell) {
  SetCaption(QStringLiteral("Estimating"));
  Units.readOnly = true;
  Units.inTabOrder = false;
  BindMenus();
  BindPopups();
  BindChain();
  BindLists();
}

void EstimateForm::BindMenus() {
  onActivate = [this] { Activated(); };
  onKeyPreview = [this](Key& key) {
    if (key.Is(Key::Name::Delete)) plan_.DeleteKey();
  };
  AutoRoom.onClick = [this] { SwitchAutoRoom(); };
  CopyArea.onClick = [this] { CopyLines(); };
  PasteArea.onClick = [this] { PasteLines(); };
  OST1.onClick = [this] {
    shell_.ShowOST();
    Show(OwnerForm());
  };
  Exit.onClick = [this] { LeaveForm(); };
}

void EstimateForm::BindPopups() {
  const auto areas = [this] {
    if (!Area.Empty()) PopUp(EditAreas);
  };
  Area.onRightClick = areas;
  AreasList.onRightClick = areas;
  eDescription.onRightClick = [this] {
    if (!eDescription.Empty()) PopUp(EditArea);
  };
  AreaList.onRightClick = [this] { PopUp(EditArea); };
  AreasDelete.onClick = [this] { DeleteArea(); };
  SystemDelete.onClick = [this] { DeleteLine(); };
  SystemInsert.onClick = [this] { InsertLine(); };
}

void EstimateForm::NonFinishScheduleItems(Form* owner) {
  FollowProject();
  Show(owner);
}

void EstimateForm::Activated() {
  if (!kit_.shared.JobID.isEmpty()) {
    Init();
    return;
  }
  shell_.ShowMainForm();
  Hide();
  shell_.ShowProjectPanel();
}

void EstimateForm::Init() {
  FollowProject();
  LoadDescriptions();
  if (!Visible()) return;
  LoadAreas();
  Show(OwnerForm());
  ScaleText.SetCaption(plan_.ScaleText());
  GetDesk().Focus(Area);
  // Back from pricing a new system: the chain goes on with its name.
  if (unknown_) GetDesk().Focus(eDescription);
  unknown_ = false;
}

// When another project is open than the one whose area stands here, nothing of it may be stored
// there. What Copy Area took stays.
void EstimateForm::FollowProject() {
  if (lines_.OfOpenProject()) return;
  for (TextField* field : {&Area, &eDescription, &Units, &Hite, &eLength}) field->Clear();
  Lengths.Clear();
  unknown_ = false;
  ForgetLines();
  lines_.FollowProject();
}

void EstimateForm::LeaveForm() {
  for (TextField* field : {&Area, &Hite, &eLength}) field->Clear();
  ForgetLines();
  unknown_ = false;
  Hide();
}

void EstimateForm::ForgetLines() {
  AreaList.Clear();
  unread_ = false;
  lines_.Forget();
}

void EstimateForm::LoadDescriptions() {
  QStringList names;
  error_ = ReadNamesDelimited(kit_.files, kit_.shared, NameList::Systems, names);
  DescriptionsList.SetRows(names);
  if (error_ == kNoError && names.isEmpty()) {
    kit_.desk.GetMessages().Tell(QStringLiteral("Enter pricing information first."));
    Hide();
  }
}

void EstimateForm::SaveDescriptions() {
  WriteNames(kit_.files, kit_.shared, NameList::Systems, DescriptionsList.Rows());
}

void EstimateForm::LoadAreas() {
  QStringList names;
  areasError_ = ReadAreaNames(kit_.files, kit_.shared, names);
  if (areasError_ != kNoError) error_ = areasError_;
  AreasList.SetRows(names);
  areaIndex_ = AreasList.Index();
  UpdateStatus();
}

void EstimateForm::SaveAreas() {
  RequireReadable(areasError_, QStringLiteral("The list of areas"));
  WriteAreaNames(kit_.files, kit_.shared, AreasList.Rows());
}

void EstimateForm::LoadArea() {
  const int kept = AreaList.Index();
  AreaList.Clear();
  QStringList lines;
  const int failure = ReadAreaDelimited(kit_.files, kit_.shared, Area.Text(), lines);
  lines_.Begin(Area.Text(), failure);
  unread_ = error_ != kNoError;
  if (failure != kNoError) error_ = failure;
  if (error_ == kNoError) AreaList.AddAll(lines);
  UpdateStatus();
  if (kept >= 0 && kept < AreaList.Count()) AreaList.SetIndex(kept);
}

// Asked before anything on the screen changes. Lines that were not read are never written over:
// they come up before those that were entered meanwhile.
void EstimateForm::PrepareSave() {
  lines_.RequireStorable(Area.Text());
  if (!unread_) return;
  QStringList lines;
  const int failure = ReadAreaDelimited(kit_.files, kit_.shared, Area.Text(), lines);
  RequireReadable(failure, QStringLiteral("Area \"%1\"").arg(Area.Text()));
  unread_ = false;
  for (qsizetype i = 0; i < lines.size(); ++i) AreaList.Insert(static_cast<int>(i), lines[i]);
}

void EstimateForm::SaveArea() {
  PrepareSave();
  WriteAreaFile(kit_.files, kit_.shared, Area.Text(), AreaList.Rows());
  reports_.PrintReport();
}

void EstimateForm::LoadSystem() {
  QStringList fetched;
  const TakeoffSystem system =
      LoadTakeoffSystem(kit_.files, kit_.shared, eDescription.Text(), fetched, error_);
  if (!fetched.isEmpty()) System.SetRows(fetched);
  workUnit_ = TrimmedBlanks(system.units);
  Units.SetText(system.units);
  kit_.shared.LineColor = system.lineColour;
  plan_.SetPenColour(system.lineColour);
  plan_.ResetMeasure();
  ScaleText.SetCaption(plan_.ScaleText());
}

void EstimateForm::UpdateStatus() {
  const int areas = AreasList.Count();
  const int lines = AreaList.Count();
  const int at = AreasList.Find(Area.Text());
  const QString area = at >= 0 ? QStringLiteral("Area %1 of %2").arg(at + 1).arg(areas)
                               : QStringLiteral("%1 areas").arg(areas);
  const QString line = AreaList.Index() >= 0
                           ? QStringLiteral("line %1 of %2").arg(AreaList.Index() + 1).arg(lines)
                           : QStringLiteral("%1 lines").arg(lines);
  StatusText.SetCaption(area + QStringLiteral(", ") + line);
}

}  // namespace tamo
