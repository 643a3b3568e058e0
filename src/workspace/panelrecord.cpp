#include "workspace/panelrecord.h"

#include "common/failure.h"
#include "common/numbers.h"
#include "records/markedplan.h"
#include "records/projectlist.h"

namespace tamo {
namespace {

// While it lives, what changes on the plan form is not the estimator's doing and saves no record.
class Loading {
 public:
  explicit Loading(SharedFields& shared) : shared_(shared), before_(shared.LoadingJobNFO) {
    shared_.LoadingJobNFO = QStringLiteral("True");
  }
  ~Loading() { shared_.LoadingJobNFO = before_; }
  Loading(const Loading&) = delete;
  Loading& operator=(const Loading&) = delete;

 private:
  SharedFields& shared_;
  QString before_;
};

int Whole(const QString& text, double least, double most) {
  return static_cast<int>(qBound(least, Truncated(Value(text)), most));
}

void ForgetPlanTexts(PlanOfProject& plan) {
  plan.SetPlanLocation(QString());
  plan.SetZoomLevel(QString());
  plan.SetScale(QString(), QString(), QString());
}

}  // namespace

JobNFO PanelRecord::RecordOfFields() const {
  const PlanOfProject::Record plan = near_.plan.Fields();
  JobNFO record{.jobID = kit_.shared.JobID,
                .jobName = panel_.JobName.Text(),
                .bidDate = panel_.BidDate.Text(),
                .addenda = panel_.Addenda.Text(),
                .phase = panel_.Phase.Text(),
                .bidItems = panel_.BidItems.Text(),
                .inclusions = panel_.Inclusions.Text(),
                .exclusions = panel_.Exclusions.Text(),
                .architect = panel_.Architect.Text(),
                .planLocation = plan.planLocation,
                .pageText = plan.pageText,
                .zoomLevel = plan.zoomLevel,
                .view = {},
                .scale1 = plan.scale1,
                .scale2 = plan.scale2,
                .text5 = plan.text5,
                .notes = panel_.Notes.Text()};
  for (int i = 0; i < 3; ++i) record.view[i] = QString::number(near_.plan.ViewValue(i));
  return record;
}

void PanelRecord::SaveJobNFO() {
  if (kit_.shared.LoadingJobNFO == QLatin1String("True")) return;
  if (!lock_.NeedUnlocked()) return;
  if (kit_.shared.JobID.isEmpty() || panel_.JobName.Empty()) return;
  const QString plan = near_.plan.Fields().planLocation;
  if (!plan.isEmpty()) near_.plan.SetPlanLocation(MarkedPlanPath(plan, kit_.shared));
  const int error = WriteProjectRecord(kit_.files, kit_.shared, RecordOfFields());
  shownFolder_ = ProjectFolder(kit_.shared).Path();
  stored_ = Texts();
  if (error == kTheirsTaken) LoadJobNFO();
}

QStringList PanelRecord::Texts() const {
  QStringList texts;
  for (const TextField* field : panel_.Fields()) texts += field->Text();
  return texts;
}

void PanelRecord::ReadRecord(const QString& picked) {
  kit_.shared.LoadingJobNFO = QStringLiteral("True");
  panel_.JobNFOFrame.Hide();
  const bool other = std::exchange(emptied_, false);
  JobNFO record = other ? JobNFO() : RecordOfFields();
  record.planLocation.clear();
  if (const int error = ReadProjectRecord(kit_.files, kit_.shared, record); error != kNoError) {
    kit_.shared.LoadingJobNFO = QStringLiteral("False");
    stored_ = Texts();
    // A project without a record has no plan; the one on the screen belongs to another project. One
    // whose record can't be read now keeps what stands.
    if (picked.isEmpty() && (other || IsMissing(error))) LeavePlan();
    return;
  }
  TakeFields(record);
  // A plan that was picked on the plan form stays on the screen.
  if (picked.isEmpty()) near_.windows.BringUpShell();
  TakePlan(record, picked);
  panel_.Notes.SetText(record.notes);
  stored_ = Texts();
  kit_.shared.LoadingJobNFO = QStringLiteral("False");
  if (near_.plan.Fields().planLocation.isEmpty()) return;
  near_.plan.HideBrowser();
  if (kit_.shared.OPN == QLatin1String("7")) {
    near_.plan.LoadPlanNotes();
    near_.windows.HideMainForm();
  }
}

// Where the file and the list differ, the list wins.
void PanelRecord::TakeFields(const JobNFO& record) {
  const QString entry = panel_.JobsList.Selected();
  if (record.jobID == IdOfEntry(entry)) kit_.shared.JobID = record.jobID;
  if (record.jobName == NameOfEntry(entry)) panel_.JobName.SetText(record.jobName);
  panel_.BidDate.SetText(record.bidDate);
  panel_.Addenda.SetText(record.addenda);
  panel_.Phase.SetText(record.phase);
  panel_.BidItems.SetText(record.bidItems);
  panel_.Inclusions.SetText(record.inclusions);
  panel_.Exclusions.SetText(record.exclusions);
  panel_.Architect.SetText(record.architect);
}

void PanelRecord::TakePlan(const JobNFO& record, const QString& picked) {
  const bool otherPlan =
      !picked.isEmpty() && PlainPlanName(picked) != PlainPlanName(record.planLocation);
  if (otherPlan) return;
  near_.plan.SetPlanLocation(record.planLocation);
  if (record.planLocation.isEmpty()) {
    near_.plan.OpenBlank();
    near_.plan.SetPageText(QString());
  } else {
    TakeView(record);
  }
}

void PanelRecord::TakeView(const JobNFO& record) {
  const bool online = kit_.shared.GUIText == QLatin1String("2");
  PlanOfProject& plan = near_.plan;
  plan.LoadFN();
  plan.SetPageText(record.pageText);
  if (online) plan.TurnToPage(Whole(record.pageText, 1, 1e6));
  plan.SetZoomLevel(record.zoomLevel);
  if (online) plan.SetZoomByLevel(record.zoomLevel);
  for (int i = 0; online && i < 3; ++i) plan.SetViewValue(i, Whole(record.view[i], -1e9, 1e9));
  plan.SetScale(record.scale1, record.scale2, record.text5);
}

void PanelRecord::ComeTo() {
  const QString folder = ProjectFolder(kit_.shared).Path();
  if (std::exchange(shownFolder_, folder) == folder) return;
  emptied_ = true;
  for (TextField* field : panel_.Fields()) {
    if (field != &panel_.JobName) field->Clear();
  }
  const Loading loading(kit_.shared);
  ForgetPlanTexts(near_.plan);
  near_.plan.SetPageText(QString());
}

void PanelRecord::Clear() {
  for (TextField* field : panel_.Fields()) {
    if (field != &panel_.BidItems) field->Clear();
  }
  kit_.shared.Locked = QStringLiteral("False");
  shownFolder_.clear();
  stored_ = Texts();
}

void PanelRecord::NameNoPlan() {
  const Loading loading(kit_.shared);
  PlanOfProject& plan = near_.plan;
  plan.SetPlanLocation(QString());
  plan.SetPageText(QString());
  plan.SetScale(plan.Fields().scale1, plan.Fields().scale2, QString());
}

void PanelRecord::LeavePlan() {
  const Loading loading(kit_.shared);
  ForgetPlanTexts(near_.plan);
  near_.plan.LoadPlanNotes();
  near_.plan.OpenBlank();
  near_.plan.SetPageText(QString());
}

}  // namespace tamo
