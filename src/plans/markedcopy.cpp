#include "plans/markedcopy.h"

#include "common/failure.h"
#include "plans/planname.h"
#include "records/datafolder.h"

namespace tamo {

bool MarkedCopy::NothingToSave() const {
  const QString shown = viewer_.ShownPath();
  const QString blank = kit_.files.Resolved(ProgramFile(kit_.shared, "Blank.pdf"));
  return form_.PlanLocation.Empty() || shown.isEmpty() || shown == blank ||
         NamesAbout(form_.PlanLocation.Text()) || NamesAbout(shown);
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
  Write(kit_.files.Resolved(target));
  form_.PlanLocation.SetText(target);
  record_.Save();
}

// A copy that can't be written waits with the other pending saves: the marks stay in the viewer as
// long as it shows this plan.
void MarkedCopy::Write(const QString& target) {
  if (waiting_ != target) kit_.files.StopTrying(waiting_);
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
  kit_.files.KeepTrying(target, error, [this, target] {
    const int again = viewer_.SaveAs(target);
    if (again == kNoError) form_.PlanProblem.SetCaption(QString());
    return again;
  });
}

void MarkedCopy::Leave() {
  if (waiting_.isEmpty()) return;
  kit_.files.TryAgain();
  kit_.files.StopTrying(waiting_);
  waiting_.clear();
}

}  // namespace tamo
