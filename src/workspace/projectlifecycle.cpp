#include "workspace/projectlifecycle.h"

#include "common/columns.h"
#include "common/paths.h"
#include "records/datafolder.h"

namespace tamo {

// Every project has a folder of its own that bears its id.
bool ProjectLifeCycle::TakeNewId() {
  const QString open = kit_.shared.JobID;
  parts_.ids.LoadProjectNumber();
  if (NameRefusal(kit_.shared.JobID).isEmpty()) return true;
  kit_.desk.GetMessages().Tell(
      QStringLiteral("The new project would have the id \"%1\", and no folder can have that name. "
                     "No project was made. Correct the estimator number in Settings, or the "
                     "number in the file Project.num of the data folder.")
          .arg(kit_.shared.JobID));
  kit_.shared.JobID = open;
  return false;
}

void ProjectLifeCycle::NewProject() {
  if (!TakeNewId()) return;
  parts_.hold.Leave();
  kit_.shared.OPN = QStringLiteral("1");
  ShowWhetherNumbered(kit_.shared.JobID);
  if (parts_.panel.NumberMissing.Shown()) near_.windows.AskForEstimatorNumber();
  parts_.record.Clear();
  near_.followers.ForgetProject();
  parts_.record.NameNoPlan();
  near_.followers.ClearReports();
  TogglePanelForName();
}

// An id without the estimator's number in front is not what anybody wants.
void ProjectLifeCycle::ShowWhetherNumbered(const QString& newId) {
  Label& missing = parts_.panel.NumberMissing;
  missing.SetCaption(
      QStringLiteral("The estimator number is missing: this project would be %1. Type it in "
                     "Settings, at Estimator Number, then choose Create Project twice.")
          .arg(newId));
  missing.SetShown(!newId.isEmpty() && parts_.estimator.Text().size() != 2);
}

void ProjectLifeCycle::TogglePanelForName() {
  ProjectPanel& panel = parts_.panel;
  if (panel.JobNFOFrame.Shown()) {
    panel.JobNFOFrame.Hide();
    if (panel.JobName.Empty()) kit_.shared.JobID.clear();
    return;
  }
  panel.JobsList.Hide();
  panel.JobNFOFrame.Show();
  kit_.desk.Focus(panel.JobName);
}

void ProjectLifeCycle::OpenProject() {
  parts_.picker.LoadJobsList();
  parts_.picker.Toggle();
}

void ProjectLifeCycle::OpenSelected() {
  ProjectPanel& panel = parts_.panel;
  const QString entry = panel.JobsList.Selected();
  panel.JobsList.Hide();
  const QString id = parts_.picker.SelectedId();
  if (id.isEmpty()) return;
  ShowWhetherNumbered({});
  const ProjectFolder project = DataFolder(kit_.shared).Project(id);
  kit_.files.ExpectFolder(project.Path());
  kit_.files.Expect(project.Record());
  kit_.shared.JobID = id;
  panel.JobName.SetText(From(entry, 14));
  kit_.shared.LoadingJobNFO = QStringLiteral("False");
  near_.followers.ForgetProject();
  parts_.hold.Open();
  parts_.record.ComeTo();
  ReadOpenProject();
}

void ProjectLifeCycle::ReadOpenProject() {
  parts_.record.LoadJobNFO();
  parts_.lock.LoadLocked();
  near_.plan.LoadPlanNotes();
  near_.plan.SetProjectName(parts_.panel.JobName.Text());
  if (!near_.plan.Fields().planLocation.isEmpty()) near_.plan.LoadPDF();
  near_.windows.BringUpShell();
}

void ProjectLifeCycle::ReadBehind() {
  Files& files = kit_.files;
  if (files.IsBehind(DataFolder(kit_.shared).ProjectList())) parts_.picker.LoadJobsList();
  if (kit_.shared.JobID.isEmpty()) return;
  const ProjectFolder project(kit_.shared);
  if (files.IsBehind(project.Lock())) parts_.lock.LoadLocked();
  // A record brings its plan and the shell's window with it, so it waits for the shell.
  const Form* active = kit_.desk.Active();
  const bool working =
      active != nullptr && active->Name() != QLatin1String("OST") && active != &parts_.panel.form;
  if (!files.IsBehind(project.Record()) || !parts_.panel.HoldsNameOnly() || working) return;
  const bool shown = parts_.panel.JobNFOFrame.Shown();
  parts_.record.LoadJobNFO();
  if (!near_.plan.Fields().planLocation.isEmpty()) near_.plan.LoadPDF();
  parts_.panel.JobNFOFrame.SetShown(shown);
}

void ProjectLifeCycle::ShowWhoHasIt() {
  const bool readOnly = parts_.hold.ReadOnly();
  for (TextField* field : parts_.panel.Fields()) field->SetReadOnly(readOnly);
  near_.followers.ShowReadOnly(readOnly);
  near_.windows.ShowTitles();
}

void ProjectLifeCycle::ReadAgain() {
  near_.followers.ForgetProject();
  ReadOpenProject();
}

void ProjectLifeCycle::ClearProject() {
  ShowWhetherNumbered({});
  parts_.hold.Leave();
  kit_.shared.JobID.clear();
  parts_.record.Clear();
  near_.followers.ForgetProject();
  parts_.record.LeavePlan();
}

void ProjectLifeCycle::ExitProjectInformation() {
  const TextField& name = parts_.panel.JobName;
  if (name.Empty()) kit_.shared.JobID.clear();
  if (kit_.shared.JobID.isEmpty()) parts_.hold.Leave();
  parts_.picker.SaveJobsList();
  if (!kit_.shared.JobID.isEmpty()) parts_.hold.Open();
  parts_.record.SaveJobNFO();
  const bool isNew = kit_.shared.OPN == QLatin1String("1");
  if (!name.Empty() && isNew) parts_.ids.SaveProjectNumber();
  parts_.panel.JobNFOFrame.Hide();
  ShowWhetherNumbered({});
  near_.plan.SetProjectName(name.Text());
  near_.followers.RefreshPricingList();
  near_.windows.BringUpShell();
  // The project is made now: a second time through the panel must not list it twice.
  if (isNew) kit_.shared.OPN = QStringLiteral("2");
  near_.followers.PrintReport();
}

}  // namespace tamo
