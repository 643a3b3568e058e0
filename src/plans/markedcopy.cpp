#include "plans/markedcopy.h"

#include <algorithm>
#include <utility>

#include "common/failure.h"
#include "plans/filetail.h"
#include "plans/planname.h"
#include "records/datafolder.h"
#include "records/projectfolders.h"

namespace tamo {
namespace {

// The file goes on from the plan shown: it is a copy of it.
bool IsCopyOf(Disk& disk, const QString& file, const QString& shown) {
  std::shared_ptr<FileReader> copy;
  std::shared_ptr<FileReader> plan;
  return disk.OpenToRead(file, copy) == kNoError && disk.OpenToRead(shown, plan) == kNoError &&
         GoesOnFrom(*copy, *plan);
}

}  // namespace

bool MarkedCopy::ShowsBlankOrAbout() const {
  const QString shown = viewer_.ShownPath();
  const QString blank = kit_.files.Resolved(ProgramFile(kit_.shared, "Blank.pdf"));
  return shown.isEmpty() || shown == blank || NamesAbout(shown);
}

bool MarkedCopy::NothingToSave() const {
  return form_.PlanLocation.Empty() || ShowsBlankOrAbout() || NamesAbout(form_.PlanLocation.Text());
}

// The copy is named after the plan on the screen, so that a path that was typed and not entered
// never takes another plan's marks. It is the name under which the record will name it.
void MarkedCopy::Save(const QString& id) {
  if (!NothingToSave() && SaveCopy(id)) record_.Save();
}

void MarkedCopy::SaveEdits(const QString& id) {
  const QString before = form_.PlanLocation.Text();
  if (!NothingToSave() && SaveCopy(id) && form_.PlanLocation.Text() != before) record_.Save();
}

bool MarkedCopy::SaveCopy(const QString& id) {
  if (!kit_.shared.ReadOnly.isEmpty()) {
    form_.PlanProblem.SetCaption(kit_.shared.ReadOnly);
    return false;
  }
  QString refusal;
  const QString target =
      MarkedCopyOf(viewer_.ShownPath(), DataFolder(kit_.shared).Project(id), refusal);
  if (target.isEmpty()) {
    form_.PlanProblem.SetCaption(refusal);
    return false;
  }
  project_ = id;
  readOnly_ = false;
  Write({kit_.files.Resolved(target), true});
  form_.PlanLocation.SetText(target);
  return true;
}

// Marks that stand in a copy of the plan already are not written over by those that were drawn on
// the plan itself: these are added.
int MarkedCopy::SaveTo(Files& files, PdfDraw& plan, const Target& target) {
  const QString shown = files.Resolved(plan.ShownPath());
  Disk& disk = files.GetDisk();
  const bool adds = target.path != shown && disk.Exists(target.path) &&
                    (!target.mayReplace || IsCopyOf(disk, target.path, shown));
  return adds ? plan.AddTo(target.path) : plan.SaveAs(target.path);
}

// A copy that can't be written waits with the other pending saves: the marks stay in the viewer as
// long as it shows this plan.
void MarkedCopy::Write(const Target& target) {
  if (waiting_.path != target.path) kit_.files.StopTrying(waiting_.path);
  MakeFolderOfProjectAgain(kit_.files, target.path);
  const int error = SaveTo(kit_.files, viewer_, target);
  if (error == kNoError) {
    form_.PlanProblem.SetCaption(QString());
    kit_.files.StopTrying(target.path);
    waiting_ = {};
    return;
  }
  const QString why = viewer_.Problem();
  form_.PlanProblem.SetCaption(why.isEmpty()
                                   ? QStringLiteral("The plan was not saved as %1, because %2.")
                                         .arg(target.path, ReasonText(error))
                                   : why);
  waiting_ = target;
  waitingFor_ = error;
  kit_.files.KeepTrying(target.path, error, [this, target] {
    const int again = SaveTo(kit_.files, viewer_, target);
    if (again == kNoError) form_.PlanProblem.SetCaption(QString());
    return again;
  });
}

void MarkedCopy::Came() {
  project_ = kit_.shared.JobID;
  Follow();
}

void MarkedCopy::Follow() {
  if (project_ == kit_.shared.JobID) readOnly_ = !kit_.shared.ReadOnly.isEmpty();
}

// "" when the marks belong to no project, or to one that is only read.
MarkedCopy::Target MarkedCopy::TargetOfMarks() const {
  if (readOnly_) return {};
  if (!waiting_.path.isEmpty()) return waiting_;
  if (project_.isEmpty()) return {};
  QString refusal;
  const QString target =
      MarkedCopyOf(viewer_.ShownPath(), DataFolder(kit_.shared).Project(project_), refusal);
  // Whoever only leaves a plan has not asked for another one's copy to be replaced.
  return {target.isEmpty() ? target : kit_.files.Resolved(target), false};
}

bool MarkedCopy::SaveMarks() {
  Follow();
  ForgetSaved();
  if (ShowsBlankOrAbout() || (waiting_.path.isEmpty() && !viewer_.HasUnsavedMarks())) return true;
  const Target target = TargetOfMarks();
  if (target.path.isEmpty()) return false;
  Write(target);
  return waiting_.path.isEmpty();
}

// A plan without a project keeps its marks as long as the program runs.
void MarkedCopy::Leave() {
  const QString before = form_.PlanProblem.Caption();
  if (SaveMarks()) return;
  form_.PlanProblem.SetCaption(before);
  Left left{std::exchange(waiting_, {}), viewer_.ShownPath(), project_, viewer_.SetAside()};
  if (!left.target.path.isEmpty()) {
    kit_.files.KeepTrying(left.target.path, waitingFor_,
                          [&files = kit_.files, plan = left.plan, target = left.target] {
                            return SaveTo(files, *plan, target);
                          });
  }
  left_.push_back(std::move(left));
}

bool MarkedCopy::ComeBack(const QString& file) {
  ForgetSaved();
  const auto found = std::find_if(left_.begin(), left_.end(), [&](const Left& left) {
    return left.target.path == file || (left.source == file && left.project == kit_.shared.JobID);
  });
  if (found == left_.end()) return false;
  Left left = std::move(*found);
  left_.erase(found);
  viewer_.BringBack(*left.plan);
  if (!left.target.path.isEmpty()) Write(left.target);
  return true;
}

// What was saved after all needs no keeping.
void MarkedCopy::ForgetSaved() {
  std::erase_if(left_, [](const Left& left) { return !left.plan->HasUnsavedMarks(); });
}

}  // namespace tamo
