#include "takeoff/estimateform.h"

#include "common/chain.h"
#include "common/columns.h"
#include "common/failure.h"
#include "records/areafile.h"
#include "records/namelists.h"
#include "records/sheetnames.h"
#include "records/storable.h"

namespace tamo {

EstimateForm::EstimateForm(const Kit& kit, PlanTools& plan, MissingSystemPricing& pricing,
                           TakeoffReportRefresh& reports, TakeoffExits& exits, TakingBack& steps)
    : TakeoffForm(kit, plan, pricing, reports, exits, steps, "EstimateForm") {
  SetCaption(QStringLiteral("Estimating"));
  DescriptionPrompt.SetCaption(QStringLiteral("Leave blank and press Enter for new Area"));
  DropFrom(Area, AreasList);
  DropFrom(eDescription, DescriptionsList);
  DropFrom(eLength, Lengths);
  KeepUnseen(CopyAreaList);
  BindWindow(OST1);
  measured.target = [this](const TextField& field) { return TargetOf(field); };
  Exit.onClick = [this] { LeaveForm(); };
  BindPopups();
  BindChain();
  BindLists();
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
  CopyArea.onClick = [this] { CopyLines(); };
  PasteArea.onClick = [this] { PasteLines(); };
}

void EstimateForm::NonFinishScheduleItems(Form* owner) {
  FollowProject();
  Show(owner);
}

void EstimateForm::Init() {
  FollowProject();
  LoadDescriptions();
  if (!Visible()) return;
  LoadAreas();
  Show(OwnerForm());
  ShowScale();
  GetDesk().Focus(Area);
  // Back from pricing a new system: the chain goes on with its name.
  if (now_.unknown && NameStands()) GetDesk().Focus(eDescription);
  now_.unknown = false;
}

// When another project is open than the one whose area stands here, nothing of it may be stored
// there. What Copy Area took stays.
void EstimateForm::FollowProject() {
  if (lines_.OfOpenProject()) return;
  for (TextField* field : {&Area, &eDescription, &Units, &Hite, &eLength}) field->Clear();
  Lengths.Clear();
  now_.unknown = false;
  measured.Forget();
  ForgetLines();
  lines_.FollowProject();
}

void EstimateForm::LeaveForm() {
  for (TextField* field : {&Area, &Hite, &eLength}) field->Clear();
  measured.Forget();
  ForgetLines();
  now_.unknown = false;
  Hide();
}

void EstimateForm::ForgetLines() {
  AreaList.Clear();
  now_.unread = false;
  lines_.Forget();
}

void EstimateForm::LoadDescriptions() {
  error_ = ReadDescriptions();
  if (error_ == kNoError && DescriptionsList.Empty()) TellToPriceFirst();
}

void EstimateForm::LoadAreas() {
  QStringList names;
  const int failure = ReadAreaNames(kit_.files, kit_.shared, names);
  if (IsMissing(failure)) error_ = failure;
  AreasList.SetRows(names);
  areaIndex_ = AreasList.Index();
  UpdateStatus();
}

void EstimateForm::SaveAreas() {
  steps_.Stores(ProjectFolder(kit_.shared).AreaNames());
  WriteAreaNames(kit_.files, kit_.shared, AreasList.Rows());
}

void EstimateForm::LoadArea() {
  const int kept = AreaList.Index();
  AreaList.Clear();
  QStringList lines;
  const int failure = ReadAreaDelimited(kit_.files, kit_.shared, Area.Text(), lines);
  lines_.Begin(Area.Text());
  // Of a file that can't be read now come the lines that it had when it could.
  const bool missing = IsMissing(failure);
  now_.unread = error_ != kNoError && (missing || failure == kNoError);
  if (missing) error_ = failure;
  if (!now_.unread) AreaList.AddAll(lines);
  UpdateStatus();
  if (kept >= 0 && kept < AreaList.Count()) AreaList.SetIndex(kept);
}

// Asked before anything on the screen changes. Lines that were not read are never written over:
// they come up before those that were entered meanwhile.
void EstimateForm::PrepareSave() {
  lines_.RequireStorable(Area.Text());
  if (!now_.unread) return;
  QStringList lines;
  ReadAreaDelimited(kit_.files, kit_.shared, Area.Text(), lines);
  now_.unread = false;
  for (qsizetype i = 0; i < lines.size(); ++i) AreaList.Insert(static_cast<int>(i), lines[i]);
}

void EstimateForm::SaveArea() {
  PrepareSave();
  steps_.Stores(ProjectFolder(kit_.shared).AreaFile(Area.Text()));
  WriteAreaFile(kit_.files, kit_.shared, Area.Text(), AreaList.Rows());
  reports_.PrintReport();
}

void EstimateForm::ReadAgain() {
  if (!lines_.OfOpenProject()) return;
  const ProjectFolder project(kit_.shared);
  QStringList rows;
  if (kit_.files.IsBehind(project.AreaNames()) &&
      ReadAreaNames(kit_.files, kit_.shared, rows) == kNoError) {
    const QStringList before = AreasList.Rows();
    AreasList.Refill(rows);
    areaIndex_ = AreasList.RowAfter(before, areaIndex_);
  }
  if (!Area.Empty() && NameStands() && !now_.unread &&
      kit_.files.IsBehind(project.AreaFile(Area.Text())) &&
      ReadAreaDelimited(kit_.files, kit_.shared, Area.Text(), rows) == kNoError)
    AreaList.Refill(rows);
  UpdateStatus();
}

void EstimateForm::LoadSystem() {
  error_ = FetchSystem(eDescription.Text());
  workUnit_ = TrimmedBlanks(Units.Text());
}

void EstimateForm::UpdateStatus() {
  ShowStatus(QStringLiteral("Area"), AreasList.Find(Area.Text()), AreasList.Count(), AreaList);
}

}  // namespace tamo
