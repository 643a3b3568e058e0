#include "common/failure.h"
#include "common/numbers.h"
#include "common/paths.h"
#include "records/lockfile.h"
#include "records/markedplan.h"
#include "records/projectlist.h"
#include "workspace/tamoform.h"

// The project's record and lock, and how a project comes, opens, closes and is locked.

namespace tamo {

JobNFO TamoForm::RecordOfFields() const {
  const PlanDesk::Record plan = plan_.Fields();
  JobNFO record;
  record.jobID = kit_.shared.JobID;
  record.jobName = JobName.Text();
  record.bidDate = BidDate.Text();
  record.addenda = Addenda.Text();
  record.phase = Phase.Text();
  record.bidItems = BidItems.Text();
  record.inclusions = Inclusions.Text();
  record.exclusions = Exclusions.Text();
  record.architect = Architect.Text();
  record.planLocation = plan.planLocation;
  record.pageText = plan.pageText;
  record.zoomLevel = plan.zoomLevel;
  for (int i = 0; i < 3; ++i) record.view[i] = QString::number(plan_.ViewValue(i));
  record.scale1 = plan.scale1;
  record.scale2 = plan.scale2;
  record.text5 = plan.text5;
  record.notes = Notes.Text();
  return record;
}

void TamoForm::SaveJobNFO() {
  if (kit_.shared.LoadingJobNFO == QLatin1String("True")) return;
  if (!NeedUnlocked()) return;
  if (kit_.shared.JobID.isEmpty() || JobName.Empty()) return;
  const QString plan = plan_.Fields().planLocation;
  if (!plan.isEmpty()) plan_.SetPlanLocation(MarkedPlanPath(plan, kit_.shared));
  WriteProjectRecord(kit_.files, kit_.shared, RecordOfFields());
}

void TamoForm::ReadRecord(const QString& picked) {
  kit_.shared.LoadingJobNFO = QStringLiteral("True");
  HidePanel();
  JobNFO record = RecordOfFields();
  record.planLocation.clear();
  if (ReadProjectRecord(kit_.files, kit_.shared, record) != kNoError) {
    kit_.shared.LoadingJobNFO = QStringLiteral("False");
    // A project without a record has no plan; the one on the screen belongs to another project.
    if (picked.isEmpty()) LeavePlan();
    return;
  }

  // Where the file and the list differ, the list wins.
  const QString entry = JobsList.Selected();
  if (record.jobID == IdOfEntry(entry)) kit_.shared.JobID = record.jobID;
  if (record.jobName == NameOfEntry(entry)) JobName.SetText(record.jobName);
  BidDate.SetText(record.bidDate);
  Addenda.SetText(record.addenda);
  Phase.SetText(record.phase);
  BidItems.SetText(record.bidItems);
  Inclusions.SetText(record.inclusions);
  Exclusions.SetText(record.exclusions);
  Architect.SetText(record.architect);
  // A plan that was picked on the plan form stays on the screen.
  if (picked.isEmpty()) shell_.BringUpShell();

  const bool otherPlan =
      !picked.isEmpty() && PlainPlanName(picked) != PlainPlanName(record.planLocation);
  if (!otherPlan) {
    plan_.SetPlanLocation(record.planLocation);
    if (!record.planLocation.isEmpty()) {
      TakePlanOfRecord(record);
    } else {
      plan_.OpenBlank();
    }
  }
  Notes.SetText(record.notes);
  kit_.shared.LoadingJobNFO = QStringLiteral("False");
  if (plan_.Fields().planLocation.isEmpty()) return;
  plan_.HideBrowser();
  if (kit_.shared.OPN == QLatin1String("7")) {
    plan_.LoadPlanNotes();
    shell_.HideMainForm();
  }
}

void TamoForm::TakePlanOfRecord(const JobNFO& record) {
  const bool online = kit_.shared.GUIText == QLatin1String("2");
  plan_.LoadFN();
  plan_.SetPageText(record.pageText);
  if (online) plan_.TurnToPage(static_cast<int>(qBound(1.0, Value(record.pageText), 1e6)));
  plan_.SetZoomLevel(record.zoomLevel);
  if (online) plan_.SetZoomByLevel(record.zoomLevel);
  for (int i = 0; online && i < 3; ++i) {
    plan_.SetViewValue(i, static_cast<int>(qBound(-1e9, Truncated(Value(record.view[i])), 1e9)));
  }
  plan_.SetScale(record.scale1, record.scale2, record.text5);
}

void TamoForm::SaveLocked() {
  WriteLock(kit_.files, kit_.shared, kit_.shared.Locked);
}

void TamoForm::LoadLocked() {
  ReadLock(kit_.files, kit_.shared, kit_.shared.Locked);
}

// The bid items stay: a new project shows those of the project before it until they are typed over.
// A test holds it.
void TamoForm::ClearRecord() {
  for (TextField* field :
       {&JobName, &BidDate, &Addenda, &Phase, &Inclusions, &Exclusions, &Architect, &Notes})
    field->Clear();
  kit_.shared.Locked = QStringLiteral("False");
}

// Every project has a folder of its own that bears its id.
bool TamoForm::CanBeAProject(const QString& id) {
  if (NameRefusal(id).isEmpty()) return true;
  kit_.desk.GetMessages().Tell(
      QStringLiteral("The new project would have the id \"%1\", and no folder can have that name. "
                     "No project was made. Correct the estimator number in Settings, or the "
                     "number in the file Project.num of the data folder.")
          .arg(id));
  return false;
}

void TamoForm::NewProject() {
  const QString open = kit_.shared.JobID;
  LoadProjectNumber();
  if (!CanBeAProject(kit_.shared.JobID)) {
    kit_.shared.JobID = open;
    return;
  }
  kit_.shared.OPN = QStringLiteral("1");
  if (settings_.EstimatorNumber.Text().size() != 2) shell_.AskForEstimatorNumber();
  ClearRecord();
  work_.ForgetProject();
  const QString loading = kit_.shared.LoadingJobNFO;
  kit_.shared.LoadingJobNFO = QStringLiteral("True");
  plan_.SetPlanLocation(QString());
  plan_.SetPageText(QString());
  plan_.SetScale(plan_.Fields().scale1, plan_.Fields().scale2, QString());
  kit_.shared.LoadingJobNFO = loading;
  work_.ClearReports();
  if (!JobNFOFrame.Shown()) {
    JobsList.Hide();
    ShowPanel();
    kit_.desk.Focus(JobName);
  } else {
    HidePanel();
    if (JobName.Empty()) kit_.shared.JobID.clear();
  }
}

void TamoForm::OpenProject() {
  LoadJobsList();
  ToggleJobsList();
}

void TamoForm::ClearProject() {
  kit_.shared.JobID.clear();
  ClearRecord();
  work_.ForgetProject();
  LeavePlan();
}

// No plan, scale or note of one project stays for the next.
void TamoForm::LeavePlan() {
  const QString loading = kit_.shared.LoadingJobNFO;
  kit_.shared.LoadingJobNFO = QStringLiteral("True");
  plan_.SetPlanLocation(QString());
  plan_.SetZoomLevel(QString());
  plan_.SetScale(QString(), QString(), QString());
  plan_.LoadPlanNotes();
  plan_.OpenBlank();
  plan_.SetPageText(QString());
  kit_.shared.LoadingJobNFO = loading;
}

void TamoForm::LockProject() {
  if (kit_.shared.JobID.isEmpty()) return;
  const bool locked = kit_.shared.Locked == QLatin1String("True");
  kit_.shared.Locked = locked ? QStringLiteral("False") : QStringLiteral("True");
  SaveLocked();
}

void TamoForm::ProjectInformation() {
  if (JobNFOFrame.Shown()) {
    HidePanel();
    return;
  }
  JobsList.Hide();
  ShowPanel();
  kit_.desk.Focus(BidDate);
}

void TamoForm::ClosePanel() {
  if (JobName.Empty()) kit_.shared.JobID.clear();
  SaveJobsList();
  SaveJobNFO();
  if (!JobName.Empty() && kit_.shared.OPN == QLatin1String("1")) SaveProjectNumber();
  HidePanel();
  plan_.SetProjectName(JobName.Text());
  work_.RefreshPricingList();
  shell_.BringUpShell();
  // The project is made now: a second time through the panel must not list it twice.
  if (kit_.shared.OPN == QLatin1String("1")) kit_.shared.OPN = QStringLiteral("2");
  work_.PrintReport();
}

}  // namespace tamo
