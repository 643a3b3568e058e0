#include "workspace/tamoform.h"

#include <array>

#include "common/columns.h"
#include "common/failure.h"
#include "common/paths.h"
#include "records/projectlist.h"
#include "records/projectnumber.h"

// Start, the panel's chain of fields, the project list and the numbers.

namespace tamo {

void TamoForm::SetUpChain() {
  const std::array<TextField*, 9> chain = {&JobName,    &BidDate,    &Addenda,   &Phase, &BidItems,
                                           &Inclusions, &Exclusions, &Architect, &Notes};
  Notes.multiLine = true;
  for (size_t i = 0; i < chain.size(); ++i) {
    TextField* field = chain[i];
    TextField* next = chain[(i + 1) % chain.size()];
    field->PutInto(JobNFOFrame);
    field->onGotFocus = [field] { field->SelectAll(); };
    field->onKey = [this, field, next](Key& key) {
      if (field == &JobName && QStringLiteral("\\,\"/").contains(key.character) &&
          !key.character.isNull())
        key.Drop();
      if (field == &Notes && key.Is(Key::Name::LineFeed)) {
        key.Drop();
        Notes.ReplaceSelection(QStringLiteral("\r\n"));
      }
      if (!key.IsEnter()) return;
      key.Drop();
      field->ClearSelection();
      kit_.desk.Focus(*next);
    };
  }
  Command1.PutInto(JobNFOFrame);
  JobNFOFrame.Hide();
  JobsList.Hide();
  JobsList.takesFocus = false;
  JobName.onChange = [this] { kit_.shared.JobName = JobName.Text(); };
  JobsList.onSelect = [this] {
    if (JobsList.Index() >= 0) OpenSelected();
  };
  Command1.onClick = [this] { ClosePanel(); };
}

void TamoForm::Init() {
  if (kit_.shared.DriveBy == QLatin1String("True")) return;
  kit_.shared.zDir = kit_.platform.programFolder;
  settings_.LoadSettings();
  work_.InitPricing();
  kit_.shared.DriveBy = QStringLiteral("False");
  MakeDataFolders(kit_.files, kit_.shared);
  SeedProjectNumber();
  SweepFolders();
  kit_.shared.JobID.clear();
  kit_.shared.Locked = QStringLiteral("False");
  if (kit_.shared.GUIText == QLatin1String("2")) {
    shell_.EnterMode(2);
  } else {
    shell_.EnterMode(1);
  }
}

// What a crash in the middle of a save left behind.
void TamoForm::SweepFolders() {
  kit_.files.Sweep(kit_.shared.zDir);
  SweepDataFolders(kit_.files, kit_.shared);
}

// Only a number that is not there at all is begun anew.
void TamoForm::SeedProjectNumber() {
  QString line;
  if (ReadProjectNumber(kit_.files, kit_.shared, line) == kFileNotFound)
    WriteProjectNumber(kit_.files, kit_.shared, SeedNumber(kit_.platform.clock.Today()));
}

void TamoForm::LoadProjectNumber() {
  ReadProjectNumber(kit_.files, kit_.shared, numberLine_);
  const NextNumber next = NumberAfter(numberLine_, kit_.platform.clock.Today());
  kit_.shared.JobID = next.number;
  if (next.newMonth) {
    SaveProjectNumber();
    numberLine_ = next.number;
  }
  kit_.shared.JobID = settings_.EstimatorNumber.Text() + QLatin1Char('-') + next.number;
}

void TamoForm::SaveProjectNumber() {
  if (kit_.shared.JobID.isEmpty()) return;
  WriteProjectNumber(kit_.files, kit_.shared, kit_.shared.JobID);
}

void TamoForm::LoadJobsList() {
  QStringList lines;
  listError_ = ReadProjectList(kit_.files, kit_.shared, lines);
  JobsList.SetRows(lines);
  listedFolder_ = kit_.shared.DataPath;
}

void TamoForm::RequireReadableList() const {
  if (listError_ == kNoError || listError_ == kFileNotFound || listError_ == kPathNotFound) return;
  throw RunTimeFailure(
      listError_,
      QStringLiteral("The project list %1 could not be read. Nothing is stored over it, so "
                     "that no project is lost; see to the file, then do this again.")
          .arg(DataFolder(kit_.shared).ProjectList()));
}

// The list is written back whole, so it must be that of the present data folder: what was never
// read, or read elsewhere, would put out the projects of this one.
void TamoForm::NeedJobsList() {
  if (listedFolder_ != kit_.shared.DataPath) LoadJobsList();
}

void TamoForm::SaveJobsList() {
  const QString& id = kit_.shared.JobID;
  if (JobName.Empty() || id.isEmpty()) return;
  if (kit_.shared.OPN == QLatin1String("1")) {
    LoadJobsList();
    RequireReadableList();
    JobsList.Add(ProjectEntry(id, JobName.Text()));
    SaveProjectNumber();
    MakeProjectFolders(kit_.files, kit_.shared);
  }
  NeedJobsList();
  RequireReadableList();
  WriteProjectList(kit_.files, kit_.shared, JobsList.Rows());
}

void TamoForm::OpenSelected() {
  const QString entry = JobsList.Selected();
  const QString id = IdToOpen(entry);
  const QString refusal = NameRefusal(id);
  if (!refusal.isEmpty()) {
    JobsList.Hide();
    kit_.desk.GetMessages().Tell(
        QStringLiteral(
            "This line of the project list has no project id that can be opened: \"%1\".")
            .arg(entry.left(60)));
    return;
  }
  kit_.shared.JobID = id;
  JobName.SetText(From(entry, 14));
  JobsList.Hide();
  kit_.shared.LoadingJobNFO = QStringLiteral("False");
  work_.ForgetProject();
  LoadJobNFO();
  LoadLocked();
  plan_.LoadPlanNotes();
  plan_.SetProjectName(JobName.Text());
  if (!plan_.Fields().planLocation.isEmpty()) plan_.LoadPDF();
  shell_.BringUpShell();
}

void TamoForm::ToggleJobsList() {
  if (JobsList.Shown()) {
    JobsList.Hide();
    HidePanel();
  } else if (!JobsList.Empty()) {
    ShowPanel();
    JobsList.Show();
  }
}

bool TamoForm::NeedProject() {
  if (!kit_.shared.JobID.isEmpty()) return true;
  LoadJobsList();
  if (kit_.shared.GUIText == QLatin1String("2")) shell_.ShowMainForm();
  ToggleJobsList();
  return false;
}

bool TamoForm::NeedUnlocked() {
  if (kit_.shared.Locked != QLatin1String("True")) return true;
  kit_.desk.GetMessages().Tell(QStringLiteral("Project is locked."));
  return false;
}

void TamoForm::ShowPanel() {
  JobNFOFrame.Show();
}
void TamoForm::HidePanel() {
  JobNFOFrame.Hide();
}

}  // namespace tamo
