#include "workspace/projectpicker.h"

#include "common/paths.h"
#include "records/projectlist.h"

namespace tamo {

void ProjectPicker::LoadJobsList() {
  QStringList entries;
  ReadProjectList(kit_.files, kit_.shared, entries);
  panel_.JobsList.SetRows(entries);
  base_ = entries;
  listedFolder_ = kit_.shared.DataPath;
}

// The list is written back whole, so it must be that of the present data folder: what was never
// read, or read elsewhere, would put out the projects of this one.
void ProjectPicker::NeedJobsList() {
  if (listedFolder_ != kit_.shared.DataPath) LoadJobsList();
}

void ProjectPicker::SaveJobsList() {
  if (panel_.JobName.Empty() || kit_.shared.JobID.isEmpty()) return;
  if (kit_.shared.OPN == QLatin1String("1")) AddProject();
  NeedJobsList();
  const QStringList entries = panel_.JobsList.Rows();
  WriteProjectList(kit_.files, kit_.shared, entries, base_);
  base_ = entries;
}

void ProjectPicker::AddProject() {
  LoadJobsList();
  ids_.MakeProject(panel_.JobsList.Rows());
  panel_.JobsList.Add(ProjectEntry(kit_.shared.JobID, panel_.JobName.Text()));
  ids_.SaveProjectNumber();
}

void ProjectPicker::RemoveProject() {
  NeedJobsList();
  const int row = panel_.JobsList.Find(ProjectEntry(kit_.shared.JobID, panel_.JobName.Text()));
  if (row >= 0) panel_.JobsList.Remove(row);
  SaveJobsList();
}

void ProjectPicker::Toggle() {
  if (panel_.JobsList.Shown()) {
    panel_.JobsList.Hide();
    panel_.JobNFOFrame.Hide();
  } else if (!panel_.JobsList.Empty()) {
    panel_.JobNFOFrame.Show();
    panel_.JobsList.Show();
  }
}

QString ProjectPicker::SelectedId() {
  const QString entry = panel_.JobsList.Selected();
  QString id = IdToOpen(entry);
  if (NameRefusal(id).isEmpty()) return id;
  kit_.desk.GetMessages().Tell(
      QStringLiteral("This line of the project list has no project id that can be opened: \"%1\".")
          .arg(entry.left(60)));
  return {};
}

}  // namespace tamo
