#include "workspace/tamoform.h"

#include "records/datafolder.h"

namespace tamo {

TamoForm::TamoForm(const Kit& kit, SettingsForm& settings, const ProjectNeighbours& neighbours)
    : Form(kit.desk, QStringLiteral("Tamo")), kit_(kit), settings_(settings), near_(neighbours) {
  AddText(QStringLiteral("JobID"), &kit_.shared.JobID);
  AddText(QStringLiteral("Locked"), &kit_.shared.Locked);
  AddText(QStringLiteral("DriveBy"), &kit_.shared.DriveBy);
  AddText(QStringLiteral("TopOfReport"), &kit_.shared.TopOfReport);
  AddText(QStringLiteral("CopyJobID"), &kit_.shared.CopyJobID);
  SetCaption(QStringLiteral("Estimating Beta 1.4"));
  panel.JobName.onChange = [this] { kit_.shared.JobName = panel.JobName.Text(); };
  panel.JobsList.onSelect = [this] {
    if (panel.JobsList.Index() < 0) return;
    projects.OpenSelected();
    conflicts.LookAround();
  };
  hold.onChange = [this] { projects.ShowWhoHasIt(); };
  hold.onFree = [this] { projects.ReadAgain(); };
  panel.Command1.onClick = [this] { projects.ExitProjectInformation(); };
}

void TamoForm::Init() {
  if (kit_.shared.DriveBy == QLatin1String("True")) return;
  kit_.shared.zDir = kit_.platform.programFolder;
  settings_.LoadSettings();
  near_.followers.InitPricing();
  kit_.shared.DriveBy = QStringLiteral("False");
  MakeDataFolders(kit_.files, kit_.shared);
  ids.SeedProjectNumber();
  for (const QString& own : {kit_.shared.zDir, kit_.platform.configFolder}) {
    kit_.files.Sweep(own);
    kit_.files.Sweep(own + kit_.shared.Separator + QStringLiteral("Docs"));
  }
  SweepDataFolders(kit_.files, kit_.shared);
  kit_.shared.JobID.clear();
  conflicts.LookAround();
  kit_.shared.Locked = QStringLiteral("False");
  near_.windows.EnterMode(kit_.shared.GUIText == QLatin1String("2") ? 2 : 1);
}

bool TamoForm::NeedProject() {
  if (!kit_.shared.JobID.isEmpty()) return true;
  picker.LoadJobsList();
  if (kit_.shared.GUIText == QLatin1String("2")) near_.windows.ShowMainForm();
  picker.Toggle();
  return false;
}

void TamoForm::ProjectInformation() {
  if (panel.JobNFOFrame.Shown()) {
    panel.JobNFOFrame.Hide();
    return;
  }
  panel.JobsList.Hide();
  panel.JobNFOFrame.Show();
  kit_.desk.Focus(panel.BidDate);
}

}  // namespace tamo
