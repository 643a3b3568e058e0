#include "workspace/projectcopies.h"

#include "workspace/projectcopy.h"
#include "workspace/projectdelete.h"

namespace tamo {

void ProjectCopies::CopyProject() {
  kit_.shared.CopyJobID = kit_.shared.JobID;
  kit_.desk.GetMessages().Tell(
      QStringLiteral(
          "Project %1 has been copied.\r\rCreate a new project to paste this project into.")
          .arg(kit_.shared.CopyJobID));
}

void ProjectCopies::PasteProject() {
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
  if (!parts_.hold.NeedWritable()) return;
  CopyProjectFiles(kit_.files, kit_.shared, source, target);
  messages.Tell(QStringLiteral("%1 has been copied into %2.").arg(source, target));
}

void ProjectCopies::DeleteProject() {
  kit_.shared.OPN = QStringLiteral("3");
  if (!parts_.lock.NeedUnlocked()) return;
  const QString id = kit_.shared.JobID;
  const QString name = parts_.panel.JobName.Text();
  if (name.isEmpty() || id.isEmpty()) return;
  if (!kit_.desk.GetMessages().Ask(QStringLiteral("Delete %1\r%2 ?").arg(id, name))) return;
  if (!parts_.hold.NeedWritable()) return;
  near_.followers.KeepDeleted(id, name);
  parts_.picker.RemoveProject();
  DeleteProjectFiles(kit_.files, kit_.shared, id);
  projects_.ClearProject();
  near_.followers.ClearReports();
}

}  // namespace tamo
