#include "plans/markedcopy.h"

#include <algorithm>
#include <utility>

#include "common/failure.h"
#include "plans/planname.h"
#include "records/datafolder.h"
#include "records/projectfolders.h"

namespace tamo {

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
  if (NothingToSave()) return;
  if (!kit_.shared.ReadOnly.isEmpty()) {
    form_.PlanProblem.SetCaption(kit_.shared.ReadOnly);
    return;
  }
  QString refusal;
  const QString target =
      MarkedCopyOf(viewer_.ShownPath(), DataFolder(kit_.shared).Project(id), refusal);
  if (target.isEmpty()) {
    form_.PlanProblem.SetCaption(refusal);
    return;
  }
  project_ = id;
  Write(kit_.files.Resolved(target));
  form_.PlanLocation.SetText(target);
  record_.Save();
}

// A copy that can't be written waits with the other pending saves: the marks stay in the viewer as
// long as it shows this plan.
void MarkedCopy::Write(const QString& target) {
  if (waiting_ != target) kit_.files.StopTrying(waiting_);
  MakeFolderOfProjectAgain(kit_.files, target);
  const int error = viewer_.SaveAs(target);
  if (error == kNoError) {
    form_.PlanProblem.SetCaption(QString());
    kit_.files.StopTrying(target);
    waiting_.clear();
    return;
  }
  const QString why = viewer_.Problem();
  form_.PlanProblem.SetCaption(why.isEmpty()
                                   ? QStringLiteral("The plan was not saved as %1, because %2.")
                                         .arg(target, ReasonText(error))
                                   : why);
  waiting_ = target;
  waitingFor_ = error;
  kit_.files.KeepTrying(target, error, [this, target] {
    const int again = viewer_.SaveAs(target);
    if (again == kNoError) form_.PlanProblem.SetCaption(QString());
    return again;
  });
}

// "" when the marks belong to no project.
QString MarkedCopy::TargetOfMarks() const {
  if (!waiting_.isEmpty()) return waiting_;
  if (project_.isEmpty()) return {};
  QString refusal;
  const QString target =
      MarkedCopyOf(viewer_.ShownPath(), DataFolder(kit_.shared).Project(project_), refusal);
  return target.isEmpty() ? target : kit_.files.Resolved(target);
}

bool MarkedCopy::SaveMarks() {
  ForgetSaved();
  if (ShowsBlankOrAbout() || (waiting_.isEmpty() && !viewer_.HasUnsavedMarks())) return true;
  const QString target = TargetOfMarks();
  if (target.isEmpty()) return false;
  const bool toAnother = target != kit_.files.Resolved(viewer_.ShownPath());
  if (toAnother && waiting_.isEmpty() && kit_.files.GetDisk().Exists(target)) {
    return viewer_.AddTo(target) == kNoError;
  }
  Write(target);
  return waiting_.isEmpty();
}

// A plan without a project keeps its marks as long as the program runs.
void MarkedCopy::Leave() {
  const QString before = form_.PlanProblem.Caption();
  if (SaveMarks()) return;
  form_.PlanProblem.SetCaption(before);
  Left left{std::exchange(waiting_, QString()), viewer_.ShownPath(), project_, viewer_.SetAside()};
  if (!left.target.isEmpty()) {
    kit_.files.KeepTrying(left.target, waitingFor_, [plan = left.plan, target = left.target] {
      return plan->SaveAs(target);
    });
  }
  left_.push_back(std::move(left));
}

bool MarkedCopy::ComeBack(const QString& file) {
  ForgetSaved();
  const auto found = std::find_if(left_.begin(), left_.end(), [&](const Left& left) {
    return left.target == file || (left.source == file && left.project == kit_.shared.JobID);
  });
  if (found == left_.end()) return false;
  Left left = std::move(*found);
  left_.erase(found);
  viewer_.BringBack(*left.plan);
  if (!left.target.isEmpty()) Write(left.target);
  return true;
}

// What was saved after all needs no keeping.
void MarkedCopy::ForgetSaved() {
  std::erase_if(left_, [](const Left& left) { return !left.plan->HasUnsavedMarks(); });
}

}  // namespace tamo
