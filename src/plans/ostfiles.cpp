#include "common/columns.h"
#include "common/failure.h"
#include "common/paths.h"
#include "plans/ostform.h"
#include "plans/planname.h"
#include "records/plannotes.h"
#include "records/planpath.h"

// Plan files: picking, opening, the marked copies, and the two small files beside them.

namespace tamo {
namespace {

QString Joined(const QString& folder, const QString& name) {
  return EndsInSeparator(folder) ? folder + name : folder + PlatformSeparator() + name;
}

}  // namespace

QString OSTForm::ProgramFile(const char* name) const {
  return Joined(kit_.shared.zDir, QLatin1String(name));
}

// --- Picking

void OSTForm::PickPlan() {
  if (Dir1.Folder() != File1.Folder()) Dir1.SetFolder(File1.Folder());
  PlanLocation.SetText(Joined(Dir1.Folder(), File1.File()));
  LoadPDF();
  Frame1.Hide();
  ProjectName.SetText(kit_.shared.JobName);
  kit_.desk.Focus(PlanLocation);
}

// The fields only: the viewer keeps the page and the zoom of the first click. A test holds it.
void OSTForm::PickPlanTwice() {
  Mode.SetText(QStringLiteral("Loading"));
  LoadPDF();
  Mode.SetText(QStringLiteral("Released"));
  ZoomLevel.SetText(QStringLiteral("1"));
  PageText.SetText(QStringLiteral("1/%1").arg(viewer_.PageCount()));
}

void OSTForm::EnterPlanLocation() {
  Frame1.Hide();
  Mode.SetText(QStringLiteral("Loading"));
  LoadPDF();
  Mode.SetText(QStringLiteral("Released"));
}

// --- Opening

// Marks that could not be written so far have their last chance when another plan comes up.
void OSTForm::LeavePlan() {
  if (waitingCopy_.isEmpty()) return;
  kit_.files.TryAgain();
  kit_.files.StopTrying(waitingCopy_);
  waitingCopy_.clear();
}

bool OSTForm::OpenPlan(const QString& path) {
  const QString file = kit_.files.Resolved(NativePath(path));
  Disk& disk = kit_.files.GetDisk();
  if (!disk.Exists(file) || disk.IsFolder(file)) {
    PlanFailed(QStringLiteral("There is no plan %1. Pick it again under Files.").arg(file));
    return false;
  }
  LeavePlan();
  const int error = viewer_.OpenFile(file, QString());
  PlanFailed(error == kNoError ? QString() : viewer_.Problem());
  ShowScale();
  return error == kNoError;
}

void OSTForm::OpenBlank() {
  PlanFailed(QString());
  ShowBlank();
}

void OSTForm::ShowBlank() {
  LeavePlan();
  viewer_.OpenFile(kit_.files.Resolved(ProgramFile("Blank.pdf")), QString());
  ShowScale();
}

void OSTForm::OpenAbout() {
  PlanLocation.SetText(ProgramFile("About.pdf"));
  OpenPlan(PlanLocation.Text());
}

void OSTForm::PlanGone() {
  PlanLocation.Clear();
  ShowBlank();
}

void OSTForm::PlanFailed(const QString& text) {
  PlanProblem.SetCaption(text);
}

void OSTForm::OpenNamedPlan() {
  if (kit_.shared.GUIText == QLatin1String("2"))
    PlanLocation.SetText(WithoutDoubleMark(PlanLocation.Text()));
  if (OpenPlan(PlanLocation.Text())) {
    picked_ = PlanLocation.Text();
  } else {
    PlanGone();
  }
  const QString problem = PlanProblem.Caption();
  keeper_.LoadJobNFO(picked_);
  picked_.clear();
  // Whatever the record brought up: the plan that was asked for could not be shown.
  if (!problem.isEmpty()) PlanFailed(problem);
}

void OSTForm::LoadPDF() {
  Mode.SetText(QStringLiteral("Loading"));
  Frame1.Hide();
  SavePath();
  SetZoomByLevel(ZoomLevel.Text());
  if (NamesAbout(PlanLocation.Text())) {
    OpenAbout();
  } else if (!PlanLocation.Empty()) {
    OpenNamedPlan();
  }
  // Opening sets inches; a metric scale that stands in the fields stays in force.
  SetUnitByText5();
  ShowPage();
  ProjectName.SetText(kit_.shared.JobName);
  Mode.SetText(QStringLiteral("Released"));
}

// A plan that was picked from elsewhere stays in sight as long as the project has no copy of it.
void OSTForm::LoadFN() {
  if (!Loading()) return;
  if (NamesAbout(PlanLocation.Text())) {
    OpenAbout();
    return;
  }
  const QString copy = PlansFolder(TrimmedBlanks(kit_.shared.JobID)) +
                       PlanNameOf(PlanLocation.Text()) + QStringLiteral("-Marked.pdf");
  PlanLocation.SetText(copy);
  const bool shown = !picked_.isEmpty() && viewer_.ShownPath() == kit_.files.Resolved(copy);
  if (shown || OpenPlan(copy)) return;
  if (picked_.isEmpty()) {
    PlanGone();
  } else {
    PlanLocation.SetText(picked_);
  }
}

// --- Marked copies

QString OSTForm::PlansFolder(const QString& id) const {
  return DataFolder(kit_.shared).Project(id).Plans();
}

void OSTForm::Save() {
  const QString id = TrimmedBlanks(kit_.shared.JobID);
  SaveMarked(id.isEmpty() ? QStringLiteral("Unknown Job ID") : id);
}

void OSTForm::SaveIt() {
  SaveMarked(TrimmedBlanks(kit_.shared.JobID));
}

// The copy is named after the plan on the screen, so that a path that was typed and not entered
// never takes another plan's marks.
void OSTForm::SaveMarked(const QString& id) {
  const QString shown = viewer_.ShownPath();
  const bool blank = shown.isEmpty() || shown == kit_.files.Resolved(ProgramFile("Blank.pdf"));
  if (PlanLocation.Empty() || blank || NamesAbout(PlanLocation.Text()) || NamesAbout(shown)) return;
  QString refusal;
  const QString name = MarkedName(shown, refusal);
  if (name.isEmpty()) {
    PlanFailed(refusal);
    return;
  }
  const QString target = PlansFolder(id) + name;
  SaveInto(kit_.files.Resolved(target));
  PlanLocation.SetText(target);
  keeper_.SaveJobNFO();
}

// A copy that can't be written waits with the other pending saves: the marks stay in the viewer as
// long as it shows this plan.
void OSTForm::SaveInto(const QString& target) {
  if (waitingCopy_ != target) kit_.files.StopTrying(waitingCopy_);
  const int error = viewer_.SaveAs(target);
  if (error == kNoError) {
    PlanSaved(target);
    return;
  }
  const QString why = viewer_.Problem();
  PlanFailed(why.isEmpty() ? QStringLiteral("The plan was not saved as %1, because %2.")
                                 .arg(target, ReasonText(error))
                           : why);
  waitingCopy_ = target;
  kit_.files.KeepTrying(target, error, [this, target] {
    const int again = viewer_.SaveAs(target);
    if (again == kNoError) PlanFailed(QString());
    return again;
  });
}

void OSTForm::PlanSaved(const QString& target) {
  PlanFailed(QString());
  kit_.files.StopTrying(target);
  waitingCopy_.clear();
}

// --- Path.tam and the notes

void OSTForm::SavePath() {
  WritePlanPath(kit_.files, kit_.shared, {Dir1.Folder(), File1.Folder()});
}

void OSTForm::LoadPath() {
  PlanPath path;
  if (ReadPlanPath(kit_.files, kit_.shared, path) != kNoError) return;
  Disk& disk = kit_.files.GetDisk();
  const auto take = [&](FileBrowser& browser, const QString& folder) {
    if (disk.IsFolder(NativePath(folder))) browser.SetFolder(NativePath(folder));
  };
  take(Dir1, path.folders);
  take(File1, path.plans);
}

void OSTForm::StartBrowser() {
  for (FileBrowser* browser : {&Drive1, &Dir1, &File1}) browser->SetFolder(kit_.shared.zDir);
  LoadPath();
}

void OSTForm::LoadOSTNotes() {
  LoadPlanNotes();
}

void OSTForm::LoadPlanNotes() {
  QString notes;
  if (!kit_.shared.JobID.isEmpty()) ReadPlanNotes(kit_.files, kit_.shared, notes);
  PlanNotes.SetText(notes);
}

void OSTForm::SavePlanNotes() {
  if (kit_.shared.JobID.isEmpty()) return;
  WritePlanNotes(kit_.files, kit_.shared, PlanNotes.Text());
}

}  // namespace tamo
