#include "workspace/projectcopies.h"

#include "workspace/projectcopy.h"
#include "workspace/projectdelete.h"

namespace tamo {
namespace {

constexpr qsizetype kMostNamed = 10;

QString Listed(const QStringList& paths) {
  QString text;
  for (const QString& path : paths.mid(0, kMostNamed)) text += QLatin1Char('\n') + path;
  if (paths.size() > kMostNamed)
    text += QStringLiteral("\nand %1 more").arg(paths.size() - kMostNamed);
  return text;
}

QString ToldOf(const ProjectCopy& copy, const QString& source, const QString& target) {
  if (!copy.left.isEmpty())
    return QStringLiteral(
               "%1 was not copied into %2: these files can't be read, and half a "
               "project would look like a whole one.%3")
        .arg(source, target, Listed(copy.left));
  if (!copy.done)
    return QStringLiteral("%1 was not copied into %2: the folder of one of them can't be found.")
        .arg(source, target);
  QString done = QStringLiteral("%1 has been copied into %2.").arg(source, target);
  if (copy.waiting.isEmpty()) return done;
  return done +
         QStringLiteral(
             "\n\nThese files of the copy could not be written yet. They wait in "
             "memory and are tried again:") +
         Listed(copy.waiting);
}

}  // namespace

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
  messages.Tell(ToldOf(CopyProjectFiles(kit_.files, kit_.shared, source, target), source, target));
}

void ProjectCopies::DeleteProject() {
  kit_.shared.OPN = QStringLiteral("3");
  if (!parts_.lock.NeedUnlocked()) return;
  const QString id = kit_.shared.JobID;
  const QString name = parts_.panel.JobName.Text();
  if (name.isEmpty() || id.isEmpty()) return;
  if (!kit_.desk.GetMessages().Ask(QStringLiteral("Delete %1\r%2 ?").arg(id, name))) return;
  if (!parts_.hold.NeedWritable()) return;
  const QString folder = DataFolder(kit_.shared).Project(id).Path();
  if (kit_.files.IsGone(folder)) {
    kit_.desk.GetMessages().Tell(
        QStringLiteral("The folder %1 can't be reached. Nothing was deleted.").arg(folder));
    return;
  }
  near_.followers.KeepDeleted(id, name);
  const QStringList left = DeleteProjectFiles(kit_.files, kit_.shared, id);
  // What is left of it can be opened, and deleted once more.
  const bool stays = HoldsProjectFiles(kit_.files, kit_.shared, id);
  if (!stays) parts_.picker.RemoveProject();
  if (stays)
    kit_.desk.GetMessages().Tell(QStringLiteral("%1 could not be deleted whole, so it stays in the "
                                                "project list. Still there:%2")
                                     .arg(id, Listed(left)));
  projects_.ClearProject();
  near_.followers.ClearReports();
}

}  // namespace tamo
