#include "records/projectlist.h"
#include "workspace/projectcopy.h"
#include "workspace/projectdelete.h"
#include "workspace/tamoform.h"

// Copying a project into a new one, and deleting a project.

namespace tamo {

void TamoForm::CopyProject() {
  kit_.shared.CopyJobID = kit_.shared.JobID;
  kit_.desk.GetMessages().Tell(
      QStringLiteral(
          "Project %1 has been copied.\r\rCreate a new project to paste this project into.")
          .arg(kit_.shared.CopyJobID));
}

void TamoForm::PasteProject() {
  const QString& source = kit_.shared.CopyJobID;
  const QString& target = kit_.shared.JobID;
  Messages& messages = kit_.desk.GetMessages();
  if (source.isEmpty()) {
    messages.Tell(QStringLiteral("No project copied.\r"));
    return;
  }
  // With no project open there is nothing to paste into, either.
  if (source == target || target.isEmpty()) {
    messages.Tell(QStringLiteral("Create new project to paste %1 into.").arg(source));
    return;
  }
  CopyProjectFiles(kit_.files, kit_.shared, source, target);
  messages.Tell(QStringLiteral("%1 has been copied into %2.").arg(source, target));
}

void TamoForm::DeleteProject() {
  kit_.shared.OPN = QStringLiteral("3");
  if (!NeedUnlocked()) return;
  const QString id = kit_.shared.JobID;
  if (JobName.Empty() || id.isEmpty()) return;
  if (!kit_.desk.GetMessages().Ask(QStringLiteral("Delete %1\r%2 ?").arg(id, JobName.Text())))
    return;
  NeedJobsList();
  const QString entry = ProjectEntry(id, JobName.Text());
  for (int row = 0; row < JobsList.Count(); ++row) {
    if (JobsList.Row(row) != entry) continue;
    JobsList.Remove(row);
    break;
  }
  SaveJobsList();
  DeleteProjectFiles(kit_.files, kit_.shared, id);
  kit_.shared.JobID.clear();
  ClearRecord();
  work_.ForgetProject();
  LeavePlan();
  work_.ClearReports();
  SaveJobsList();
}

}  // namespace tamo
