#include "plans/planopener.h"

#include "common/columns.h"
#include "common/failure.h"
#include "common/paths.h"
#include "plans/planname.h"
#include "records/markedplan.h"

namespace tamo {

PlanOpener::PlanOpener(const Kit& kit, OstControls& form, PdfDraw& viewer, const PlanParts& parts)
    : kit_(kit), form_(form), viewer_(viewer), parts_(parts) {
  form_.File1.onPick = [this] { Pick(); };
  form_.File1.onDoublePick = [this] { PickTwice(); };
}

// --- Picking

void PlanOpener::Pick() {
  if (form_.Dir1.Folder() != form_.File1.Folder()) form_.Dir1.SetFolder(form_.File1.Folder());
  form_.PlanLocation.SetText(InFolder(form_.Dir1.Folder(), form_.File1.File()));
  LoadPDF();
  form_.Frame1.Hide();
  form_.ProjectName.SetText(kit_.shared.JobName);
  kit_.desk.Focus(form_.PlanLocation);
}

// The fields only: the viewer keeps the page and the zoom of the first click. A test holds it.
void PlanOpener::PickTwice() {
  form_.Mode.SetText(QStringLiteral("Loading"));
  LoadPDF();
  form_.Mode.SetText(QStringLiteral("Released"));
  form_.ZoomLevel.SetText(QStringLiteral("1"));
  form_.PageText.SetText(QStringLiteral("1/%1").arg(viewer_.PageCount()));
}

void PlanOpener::EnterPlanLocation() {
  form_.Frame1.Hide();
  form_.Mode.SetText(QStringLiteral("Loading"));
  LoadPDF();
  form_.Mode.SetText(QStringLiteral("Released"));
}

// --- Opening

bool PlanOpener::Open(const QString& path) {
  const QString file = kit_.files.Resolved(NativePath(path));
  form_.LockedPlan.Hide();
  parts_.copy.Leave();
  if (parts_.copy.ComeBack(file)) {
    parts_.scale.Show();
    return true;
  }
  Disk& disk = kit_.files.GetDisk();
  if (!disk.Exists(file) || disk.IsFolder(file)) {
    form_.PlanProblem.SetCaption(
        QStringLiteral("There is no plan %1. Pick it again under Files.").arg(file));
    return false;
  }
  viewer_.Patience().SetSeen(form_.Visible());
  const int error = viewer_.OpenFile(file, password_);
  parts_.copy.Came();
  form_.PlanProblem.SetCaption(error == kNoError ? viewer_.Caution() : viewer_.Problem());
  if (viewer_.WantsPassword()) AskPassword(path);
  parts_.scale.Show();
  return error == kNoError;
}

void PlanOpener::AskPassword(const QString& path) {
  locked_ = path;
  form_.PlanPassword.Clear();
  form_.LockedPlan.Show();
}

void PlanOpener::OpenLocked() {
  password_ = form_.PlanPassword.Text();
  form_.PlanLocation.SetText(locked_);
  form_.LockedPlan.Hide();
  LoadPDF();
}

void PlanOpener::OpenBlank() {
  form_.PlanProblem.SetCaption(QString());
  ShowBlank();
}

void PlanOpener::ShowBlank() {
  parts_.copy.Leave();
  viewer_.Patience().SetSeen(form_.Visible());
  viewer_.OpenFile(kit_.files.Resolved(ProgramFile(kit_.shared, "Blank.pdf")), QString());
  parts_.scale.Show();
}

void PlanOpener::OpenAbout() {
  form_.PlanLocation.SetText(ProgramFile(kit_.shared, "About.pdf"));
  Open(form_.PlanLocation.Text());
}

void PlanOpener::PlanGone() {
  form_.PlanLocation.Clear();
  ShowBlank();
}

void PlanOpener::OpenNamed() {
  if (kit_.shared.GUIText == QLatin1String("2"))
    form_.PlanLocation.SetText(WithoutDoubleMark(form_.PlanLocation.Text()));
  if (Open(form_.PlanLocation.Text())) {
    picked_ = form_.PlanLocation.Text();
  } else {
    PlanGone();
  }
  const QString problem = form_.PlanProblem.Caption();
  const bool locked = form_.LockedPlan.Shown();
  parts_.record.LoadFor(picked_);
  picked_.clear();
  // Whatever the record brought up: the plan that was asked for could not be shown.
  if (!problem.isEmpty()) form_.PlanProblem.SetCaption(problem);
  if (locked) form_.LockedPlan.Show();
}

void PlanOpener::LoadPDF() {
  form_.Mode.SetText(QStringLiteral("Loading"));
  form_.Frame1.Hide();
  parts_.browser.Save();
  parts_.pages.SetZoomByLevel(form_.ZoomLevel.Text());
  if (NamesAbout(form_.PlanLocation.Text())) {
    OpenAbout();
  } else if (!form_.PlanLocation.Empty()) {
    OpenNamed();
  }
  // Opening sets inches; a metric scale that stands in the fields stays in force.
  parts_.scale.SetUnitByText5();
  parts_.pages.ShowPage();
  form_.ProjectName.SetText(kit_.shared.JobName);
  form_.Mode.SetText(QStringLiteral("Released"));
}

// A plan that was picked from elsewhere stays in sight as long as the project has no copy of it.
void PlanOpener::LoadFN() {
  if (!parts_.record.Loading()) return;
  if (NamesAbout(form_.PlanLocation.Text())) {
    OpenAbout();
    return;
  }
  const ProjectFolder project = DataFolder(kit_.shared).Project(TrimmedBlanks(kit_.shared.JobID));
  const QString copy = project.Plans() + MarkedPlanName(PlanNameOf(form_.PlanLocation.Text()));
  form_.PlanLocation.SetText(copy);
  const bool shown = !picked_.isEmpty() && viewer_.ShownPath() == kit_.files.Resolved(copy);
  if (shown || Open(copy)) return;
  if (picked_.isEmpty()) {
    PlanGone();
  } else {
    form_.PlanLocation.SetText(picked_);
  }
}

}  // namespace tamo
